#pragma once

#include "catalogue/Catalogue.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

namespace zel::dataformats::data {
class Array;
class Object;
class Value;
} // namespace zel::dataformats::data

namespace model {

/// Makes trees such as callers may give to the library, from good to absurd: wrong types, nulls,
/// unknown keys, uris of every shape, nested and cyclic classes, numbers and texts of all sizes. It
/// leaves out the one thing that a caller may never do: what stands under `uri` in an object under
/// a polymorphic field is text here, or there is no `uri`.
///
/// The same seed gives the same trees, on every machine; other sources than chance will do too.
class RandomTree {
public:
    using Value = zel::dataformats::data::Value;
    using Resource = zel::kiv::catalogue::Resource;
    using Field = zel::kiv::catalogue::Field;

    /// Gives a number from 0 to `most`, for every decision there is to take.
    using Source = std::function<std::uint64_t(std::uint64_t most)>;

    explicit RandomTree(Source source) : m_source(std::move(source)) {}
    explicit RandomTree(std::uint64_t seed);

    /// What a resource could be given, mostly an array; may be null.
    std::unique_ptr<Value> forResource(Resource const& resource);

private:
    using Object = zel::dataformats::data::Object;
    using Array = zel::dataformats::data::Array;

    /// A number below `count`, which is not 0.
    std::size_t below(std::size_t count) { return m_source(count - 1); }
    /// True in one of `count` cases.
    bool oneIn(std::size_t count) { return below(count) == 0; }
    std::string pick(std::initializer_list<char const*> texts);

    /// Starts a tree of a new size.
    void restart();
    bool isSpent() const { return m_left <= 0; }

    int number();
    double real();
    std::string text();
    std::string bytes();
    /// A uri in which the service and the resource are mostly those of `resource`, if not null.
    std::string uri(Resource const* resource);
    std::string unknownKey(Resource const* resource);

    /// Any value at all, of that depth at most; may be null.
    std::unique_ptr<Value> anything(int depth);
    std::unique_ptr<Value> forField(Field const& field);
    std::unique_ptr<Value> forList(Field const& field);
    std::unique_ptr<Value> forEntry(Field const& field);
    std::unique_ptr<Value> forPolymorphic(Field const& field);
    /// An object with fields of `resource`, null standing for an external reference.
    std::unique_ptr<Object> objectOf(Resource const* resource);
    std::unique_ptr<Object> anyObject(int depth);
    std::unique_ptr<Array> anyArray(int depth);

    Source m_source;
    int m_left = 0; ///< how many more values the tree may get, roughly
};

} // namespace model
