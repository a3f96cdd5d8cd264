#include "tests/robust/Samples.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <map>
#include <string>

namespace samples {
namespace {

using namespace zel::dataformats::data;
using zel::kiv::catalogue::isList;
using zel::kiv::catalogue::isNested;
using zel::kiv::catalogue::Kind;

constexpr auto longText = "a text that is too long to be kept in place";

std::string uriOf(Resource const* resource)
{
    std::string const name = resource == nullptr ? "things/outside"
                                                 : std::string(resource->service) + '/' +
                                                       std::string(resource->resourceKey);
    return '/' + name + "/an id that is too long to be kept in place";
}

std::unique_ptr<Value> nestedValue(Resource const* target)
{
    auto object = std::make_unique<Object>();
    if (target != nullptr) {
        object = objectOf(*target, Fields::Plain);
    }
    object->setNew("uri", new String(uriOf(target)));
    return object;
}

std::unique_ptr<Value> plainValue(Kind kind)
{
    switch (kind) {
    case Kind::Int:
    case Kind::IntList:
        return std::make_unique<Integer>(7);
    case Kind::Double:
        return std::make_unique<Float>(0.5);
    case Kind::Bool:
        return std::make_unique<Boolean>(true);
    default:
        return std::make_unique<String>(longText);
    }
}

std::unique_ptr<Value> valueFor(Field const& field, std::size_t target)
{
    auto const single = [&]() -> std::unique_ptr<Value> {
        return isNested(field.kind) ? nestedValue(field.targets[target % field.targets.size()])
                                    : plainValue(field.kind);
    };
    if (!isList(field.kind)) {
        return single();
    }
    auto array = std::make_unique<Array>();
    for (int count = 0; count < 3; ++count) {
        array->pushNew(single().release());
    }
    if (isNested(field.kind)) {
        array->pushNew(new String(uriOf(nullptr)));
    }
    return array;
}

bool sameEntries(Value const& left, Value const& right)
{
    // The getter of an array is not const, though it changes nothing.
    auto const& one = const_cast<Array&>(static_cast<Array const&>(left)).get();
    auto const& other = const_cast<Array&>(static_cast<Array const&>(right)).get();
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), same);
}

bool sameMembers(Value const& left, Value const& right)
{
    auto const& one = static_cast<Object const&>(left).get();
    auto const& other = static_cast<Object const&>(right).get();
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](auto const& a, auto const& b) {
                          return a.first == b.first && same(static_cast<Value const*>(a.second),
                                                            static_cast<Value const*>(b.second));
                      });
}

} // namespace

std::unique_ptr<Object> objectOf(Resource const& resource, Fields fields, std::size_t target)
{
    auto object = std::make_unique<Object>();
    for (Field const& field : resource.fields) {
        if (fields == Fields::All || !isNested(field.kind)) {
            object->setNew(std::string(field.key).c_str(), valueFor(field, target).release());
        }
    }
    return object;
}

std::unique_ptr<Array> arrayOf(Resource const& resource)
{
    auto array = std::make_unique<Array>();
    array->pushNew(objectOf(resource, Fields::All, 0).release());
    array->pushNew(objectOf(resource, Fields::All, 1).release());
    array->pushNew(new String(longText));
    array->pushNew(nullptr);
    return array;
}

bool same(Value const* left, Value const* right)
{
    if (left == nullptr || right == nullptr || left->getType() != right->getType()) {
        return left == right;
    }
    switch (left->getType()) {
    case ValueType::Array:
        return sameEntries(*left, *right);
    case ValueType::Object:
        return sameMembers(*left, *right);
    case ValueType::Float: {
        double const one = static_cast<Float const*>(left)->get();
        double const other = static_cast<Float const*>(right)->get();
        return std::memcmp(&one, &other, sizeof one) == 0;
    }
    case ValueType::Blob: {
        auto const one = static_cast<Blob const*>(left)->get();
        auto const other = static_cast<Blob const*>(right)->get();
        return std::equal(one.data(), one.data() + one.size(), other.data(),
                          other.data() + other.size());
    }
    default:
        return Ref(left).asString() == Ref(right).asString();
    }
}

std::vector<Step> wayToItself(Resource const& resource)
{
    std::map<Resource const*, std::vector<Step>> ways;
    std::deque<Resource const*> next{&resource};
    for (; !next.empty(); next.pop_front()) {
        std::vector<Step> const before = ways[next.front()];
        for (Field const& field : next.front()->fields) {
            for (Resource const* const target : field.targets) {
                auto way = before;
                way.push_back({&field, target});
                if (target == &resource) {
                    return way;
                }
                if (target != nullptr && ways.try_emplace(target, way).second) {
                    next.push_back(target);
                }
            }
        }
    }
    return {};
}

std::unique_ptr<Object> chainOf(Resource const& resource, std::vector<Step> const& way,
                                std::size_t depth)
{
    auto inner = std::make_unique<Object>();
    inner->setNew("uri", new String(uriOf(&resource)));
    for (std::size_t level = depth; level > 0; --level) {
        std::size_t const index = (level - 1) % way.size();
        Resource const* const holder = index == 0 ? &resource : way[index - 1].target;
        auto object = std::make_unique<Object>();
        object->setNew("uri", new String(uriOf(holder)));
        std::unique_ptr<Value> value = std::move(inner);
        if (isList(way[index].field->kind)) {
            auto array = std::make_unique<Array>();
            array->pushNew(value.release());
            value = std::move(array);
        }
        object->setNew(std::string(way[index].field->key).c_str(), value.release());
        inner = std::move(object);
    }
    return inner;
}

} // namespace samples
