#pragma once

#include "Mirror.h"
#include "values/values.h"

#include <type_traits>

namespace bench {

// The parts that the limits and the peers have in common: they all go through the fields of the
// plain structures in `Mirror.h`, and only differ in what is on the other side.

template <typename Type>
inline constexpr bool isVector = false;
template <typename Entry>
inline constexpr bool isVector<std::vector<Entry>> = true;

template <typename Type>
inline constexpr bool isPointer = false;
template <typename Held>
inline constexpr bool isPointer<std::unique_ptr<Held>> = true;

/// The type of a member, given a pointer to it.
template <typename Member>
struct MemberType;
template <typename Type, typename Struct>
struct MemberType<Type Struct::*> {
    using type = Type;
};
template <typename Member>
using TypeOf = typename MemberType<Member>::type;

template <typename Scalar>
bool isSet(std::optional<Scalar> const& field)
{
    return field.has_value();
}
template <typename Entry>
bool isSet(std::vector<Entry> const& field)
{
    return !field.empty();
}
template <typename Held>
bool isSet(std::unique_ptr<Held> const& field)
{
    return field != nullptr;
}

using Map = zel::common::types::PtrMap<std::string, zel::dataformats::data::Value>;

inline Map const& mapOf(zel::dataformats::data::Value const& value)
{
    return static_cast<zel::dataformats::data::Object const&>(value).get();
}

inline auto const& entriesOf(zel::dataformats::data::Value const& value)
{
    using zel::dataformats::data::Array;
    return const_cast<Array&>(static_cast<Array const&>(value)).get();
}

/// Reads a field of a structure from a value.
template <typename Field>
void read(zel::dataformats::data::Value const& value, Field& field)
{
    using zel::dataformats::data::Ref;
    if constexpr (std::is_same_v<Field, std::string> ||
                  std::is_same_v<Field, std::optional<std::string>>) {
        field = Ref(&value).asString();
    } else if constexpr (std::is_same_v<Field, int> || std::is_same_v<Field, std::optional<int>>) {
        field = Ref(&value).asInteger();
    } else if constexpr (std::is_same_v<Field, std::optional<double>>) {
        field = Ref(&value).asFloat();
    } else if constexpr (std::is_same_v<Field, std::optional<bool>>) {
        field = Ref(&value).asBoolean();
    } else if constexpr (isVector<Field>) {
        for (auto const* entry : entriesOf(value)) {
            read(*entry, field.emplace_back());
        }
    } else if constexpr (isPointer<Field>) {
        field = std::make_unique<typename Field::element_type>();
        read(value, *field);
    } else {
        Map const& map = mapOf(value);
        eachField(&field, [&](std::string const& key, auto member, auto /*setter*/) {
            auto const entry = map.find(key);
            if (entry != map.end()) {
                read(*static_cast<zel::dataformats::data::Value const*>(entry->second),
                     field.*member);
            }
        });
    }
}

} // namespace bench
