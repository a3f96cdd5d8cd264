#pragma once

#include "json/ValueNames.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace kiv {

using Map = types::PtrMap<std::string, data::Value>;

template <typename AnyMap, typename = void>
struct Walkable : std::false_type {
};

template <typename AnyMap>
struct Walkable<
    AnyMap,
    std::void_t<decltype(std::declval<AnyMap const&>().begin()->first),
                decltype(++std::declval<decltype(std::declval<AnyMap const&>().begin())&>())>>
    : std::true_type {
};

/// Whether the platform's maps can be walked, and not only asked for a key.
inline constexpr bool mapsAreWalkable = Walkable<Map>::value;

/// Calls `use` with each key and value, which may be null, in the order of the map. Does nothing if
/// the map cannot be walked.
template <typename AnyMap, typename Use>
void eachOf(AnyMap const& map, Use use)
{
    if constexpr (Walkable<AnyMap>::value) {
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            use(std::string_view(entry->first), static_cast<data::Value const*>(entry->second));
        }
    }
}

/// The value under a key, or null if it is not there or null.
inline data::Value const* valueAt(data::Object const& object, std::string const& key)
{
    auto const& map = object.get();
    auto const found = map.find(key);
    return found == map.end() ? nullptr : static_cast<data::Value const*>(found->second);
}

/// The entries of an array. Its getter is not const, though it changes nothing.
inline types::PtrVector<data::Value> const& entriesOf(data::Array const& array)
{
    return const_cast<data::Array&>(array).get();
}

/// The text of a value that is text.
inline std::string const& textIn(data::Value const& value)
{
    return static_cast<data::String const&>(value).get();
}

} // namespace kiv
