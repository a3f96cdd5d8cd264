#include "tools/sample/Sample.h"

#include "tools/sample/SampleValues.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace zel::kiv::sample {

namespace {

using catalogue::Content;
using catalogue::Field;
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

/// What a nested place holds.
struct Nested {
    Resource const* resource;
    std::string_view key; ///< of the field that holds it
    int number;           ///< its id
};

std::string uriOf(Nested const& nested)
{
    std::string const place = nested.resource->isExternal()
                                  ? "other/" + std::string(nested.key)
                                  : std::string(nested.resource->service) + '/' +
                                        std::string(nested.resource->resourceKey);
    return '/' + place + '/' + std::to_string(nested.number);
}

/// "Preset 1" for the first of the elements `PresetObject`.
std::string nameOf(Nested const& nested)
{
    std::string_view name = nested.key;
    if (!nested.resource->isExternal()) {
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

/// The first target that is of the interface, if there is one.
Resource const* targetOf(Field const& field)
{
    auto const found = std::ranges::find_if_not(field.targets, &Resource::isExternal);
    return found == field.targets.end() ? field.targets.front() : *found;
}

/// The value of a field, or the entry at `place` in its list. `number` is the id of the element
/// that has the field; what it holds gets the next ones, so that no element seems to hold itself.
ValuePointer entryOf(Field const& field, int place, int number, int depth)
{
    switch (traitsOf(field.kind).content) {
    case Content::String:
        return text(isList(field.kind) ? textsFor(field.key).at(static_cast<std::size_t>(place))
                                       : textFor(field.key));
    case Content::Integer:
        return std::make_unique<Integer>(intFor(field.key) + place);
    case Content::Float:
        return std::make_unique<Float>(doubleFor(field.key));
    case Content::Boolean:
        return std::make_unique<Boolean>(true);
    case Content::Object:
        break;
    }
    return nestedValue({targetOf(field), field.key, number + 1 + place}, depth);
}

ValuePointer valueOf(Field const& field, int number, int depth)
{
    if (!isList(field.kind)) {
        return entryOf(field, 0, number, depth);
    }
    auto list = std::make_unique<Array>();
    for (int const place : {0, 1}) {
        list->pushNew(entryOf(field, place, number, depth).release());
    }
    return list;
}

ValuePointer elementOf(Nested const& nested, int depth)
{
    auto object = std::make_unique<Object>();
    for (auto const& field : nested.resource->fields) {
        std::string const key(field.key);
        object->setNew(key.c_str(), valueOf(field, nested.number, depth).release());
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
