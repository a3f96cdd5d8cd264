#include "tools/sample/Sample.h"

#include "tools/sample/SampleValues.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace zel::kiv::sample {

namespace {

using catalogue::Field;
using catalogue::Kind;
using catalogue::Resource;
using dataformats::data::Array;
using dataformats::data::Boolean;
using dataformats::data::Float;
using dataformats::data::Integer;
using dataformats::data::Object;
using dataformats::data::String;
using dataformats::data::Value;
using ValuePointer = std::unique_ptr<Value>;

ValuePointer text(std::string const& words)
{
    return std::make_unique<String>(words);
}

/// What a nested place holds: an element of a resource, or, without one, a reference to something
/// outside the interface.
struct Nested {
    Resource const* resource;
    std::string_view key; ///< of the field that holds it
    int number;           ///< its id
};

std::string uriOf(Nested const& nested)
{
    std::string const place = nested.resource == nullptr
                                  ? "other/" + std::string(nested.key)
                                  : std::string(nested.resource->service) + '/' +
                                        std::string(nested.resource->resourceKey);
    return '/' + place + '/' + std::to_string(nested.number);
}

/// "Preset 1" for the first of the elements `PresetObject`.
std::string nameOf(Nested const& nested)
{
    std::string_view name = nested.key;
    if (nested.resource != nullptr) {
        name = nested.resource->element;
        name.remove_suffix(name.ends_with("Object") ? std::string_view("Object").size() : 0);
    }
    std::string words = wordsOf(name);
    if (words.front() >= 'a' && words.front() <= 'z') {
        words.front() = static_cast<char>(words.front() - 'a' + 'A');
    }
    return words + ' ' + std::to_string(nested.number);
}

ValuePointer elementOf(Nested const& nested, int depth);

ValuePointer nestedValue(Nested const& nested, int depth)
{
    if (depth > 0) {
        return elementOf(nested, depth - 1);
    }
    return text(uriOf(nested));
}

Resource const* targetOf(Field const& field)
{
    auto const found =
        std::ranges::find_if(field.targets, [](auto const* each) { return each != nullptr; });
    return found == field.targets.end() ? nullptr : *found;
}

ValuePointer listOf(ValuePointer first, ValuePointer second)
{
    auto list = std::make_unique<Array>();
    list->pushNew(first.release());
    list->pushNew(second.release());
    return list;
}

/// `number` is the id of the element that has the field; what it holds gets the next ones, so that
/// no element seems to hold itself.
ValuePointer valueOf(Field const& field, int number, int depth)
{
    Nested const nested{targetOf(field), field.key, number + 1};
    Nested const next{targetOf(field), field.key, number + 2};
    switch (field.kind) {
    case Kind::String:
        return text(textFor(field.key));
    case Kind::Int:
        return std::make_unique<Integer>(intFor(field.key));
    case Kind::Double:
        return std::make_unique<Float>(doubleFor(field.key));
    case Kind::Bool:
        return std::make_unique<Boolean>(true);
    case Kind::StringList: {
        auto const words = textsFor(field.key);
        return listOf(text(words.front()), text(words.back()));
    }
    case Kind::IntList: {
        int const first = intFor(field.key);
        return listOf(std::make_unique<Integer>(first), std::make_unique<Integer>(first + 1));
    }
    case Kind::Element:
    case Kind::External:
    case Kind::Polymorphic:
        return nestedValue(nested, depth);
    case Kind::ElementList:
    case Kind::ExternalList:
        return listOf(nestedValue(nested, depth), nestedValue(next, depth));
    }
    return nullptr;
}

ValuePointer elementOf(Nested const& nested, int depth)
{
    auto object = std::make_unique<Object>();
    if (nested.resource != nullptr) {
        for (auto const& field : nested.resource->fields) {
            std::string const key(field.key);
            object->setNew(key.c_str(), valueOf(field, nested.number, depth).release());
        }
    }
    object->setNew("id", text(std::to_string(nested.number)).release());
    object->setNew("name", text(nameOf(nested)).release());
    object->setNew("uri", text(uriOf(nested)).release());
    return object;
}

} // namespace

std::unique_ptr<Value> sampleOf(Resource const& resource, int depth)
{
    return elementOf({&resource, resource.resourceKey, 1}, depth);
}

} // namespace zel::kiv::sample
