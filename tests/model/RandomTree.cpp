#include "tests/model/RandomTree.h"

#include "tests/model/Model.h"

#include "values/values.h"

#include <array>
#include <random>
#include <utility>

namespace model {

namespace {

namespace catalogue = zel::kiv::catalogue;
namespace data = zel::dataformats::data;

using catalogue::Kind;

} // namespace

RandomTree::RandomTree(std::uint64_t seed)
    : RandomTree([engine = std::mt19937_64(seed)](std::uint64_t most) mutable {
          return most == engine.max() ? engine() : engine() % (most + 1);
      })
{
}

std::string RandomTree::pick(std::initializer_list<char const*> texts)
{
    return texts.begin()[below(texts.size())];
}

void RandomTree::restart()
{
    // Small trees show faults as well as large ones and are sooner done.
    constexpr std::array sizes{3, 10, 10, 30, 30, 30, 30, 200};
    m_left = sizes.at(below(sizes.size()));
}

std::unique_ptr<data::Value> RandomTree::anything(int depth)
{
    --m_left;
    switch (below(depth > 0 ? 12 : 8)) {
    case 0:
        return nullptr;
    case 1:
        return std::make_unique<data::Null>();
    case 2:
        return std::make_unique<data::Boolean>(oneIn(2));
    case 3:
        return std::make_unique<data::Integer>(number());
    case 4:
        return std::make_unique<data::Float>(real());
    case 5:
        return std::make_unique<data::Blob>(
            zel::common::types::BufferDescriptor<char const>("blob", below(5)));
    case 6:
        return std::make_unique<data::String>(text());
    case 7:
        return std::make_unique<data::String>(uri(nullptr));
    case 8:
    case 9:
        return anyArray(depth - 1);
    default:
        return anyObject(depth - 1);
    }
}

std::unique_ptr<data::Array> RandomTree::anyArray(int depth)
{
    auto array = std::make_unique<data::Array>();
    for (std::size_t left = below(4); left > 0; --left) {
        array->pushNew(anything(depth).release());
    }
    return array;
}

/// May end up anywhere, so its uri is always text.
std::unique_ptr<data::Object> RandomTree::anyObject(int depth)
{
    auto object = std::make_unique<data::Object>();
    for (std::size_t left = below(4); left > 0; --left) {
        std::string const key = unknownKey(nullptr);
        object->setNew(key.c_str(), anything(depth).release());
    }
    if (oneIn(2)) {
        object->setNew("id", anything(depth).release());
    }
    if (oneIn(2)) {
        object->setNew("uri", new data::String(uri(nullptr)));
    }
    return object;
}

std::unique_ptr<data::Object> RandomTree::objectOf(Resource const* resource)
{
    auto object = std::make_unique<data::Object>();
    while (oneIn(3)) {
        std::string const key = unknownKey(resource);
        object->setNew(key.c_str(), anything(2).release());
    }
    auto const fields = resource->fields;
    std::size_t const start = below(fields.size());
    std::size_t const oneTaken = 1 + below(4);
    for (std::size_t step = 0; step < fields.size() && !isSpent(); ++step) {
        auto const& field = fields[(start + step) % fields.size()];
        if (oneIn(oneTaken)) {
            object->setNew(field.key.data(), forField(field).release());
        }
    }
    return object;
}

std::unique_ptr<data::Value> RandomTree::forField(Field const& field)
{
    if (isSpent() || oneIn(16)) {
        return nullptr;
    }
    if (oneIn(8)) {
        return anything(3);
    }
    if (catalogue::isList(field.kind)) {
        return forList(field);
    }
    return forEntry(field);
}

std::unique_ptr<data::Value> RandomTree::forList(Field const& field)
{
    auto array = std::make_unique<data::Array>();
    std::size_t const size = below(5);
    bool const isAllNull = oneIn(16);
    for (std::size_t left = size; left > 0; --left) {
        if (isAllNull || oneIn(8)) {
            array->pushNew(nullptr);
        } else {
            array->pushNew((oneIn(8) ? anything(3) : forEntry(field)).release());
        }
    }
    return array;
}

std::unique_ptr<data::Value> RandomTree::forEntry(Field const& field)
{
    --m_left;
    switch (field.kind) {
    case Kind::String:
    case Kind::StringList:
        return std::make_unique<data::String>(text());
    case Kind::Int:
    case Kind::IntList:
        return std::make_unique<data::Integer>(number());
    case Kind::Double:
        return std::make_unique<data::Float>(real());
    case Kind::Bool:
        return std::make_unique<data::Boolean>(oneIn(2));
    case Kind::Polymorphic:
        return forPolymorphic(field);
    case Kind::Element:
    case Kind::ElementList:
    case Kind::External:
    case Kind::ExternalList:
        break;
    }
    if (oneIn(3)) {
        return std::make_unique<data::String>(uri(field.targets.front()));
    }
    return objectOf(field.targets.front());
}

/// The uri is chosen first. What the object holds is then made for the class that will read it: in
/// another class the same key could be a polymorphic field, whose objects are bound in their uri.
std::unique_ptr<data::Value> RandomTree::forPolymorphic(Field const& field)
{
    std::string const text = uri(field.targets[below(field.targets.size())]);
    if (oneIn(3)) {
        return std::make_unique<data::String>(text);
    }
    Choice const choice = choose(field, text);
    auto object = choice.made ? objectOf(choice.resource) : anyObject(2);
    object->setNew("uri", new data::String(text));
    return object;
}

std::unique_ptr<data::Value> RandomTree::forResource(Resource const& resource)
{
    restart();
    if (oneIn(64)) {
        return anything(3);
    }
    auto array = std::make_unique<data::Array>();
    for (std::size_t left = below(4); left > 0; --left) {
        if (isSpent()) {
            restart();
        }
        array->pushNew((oneIn(16) ? anything(3) : objectOf(&resource)).release());
    }
    return array;
}

} // namespace model
