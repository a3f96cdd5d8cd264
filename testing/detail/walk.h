#pragma once

#include <type_traits>
#include <utility>

namespace zel::kiv::testing::detail {

template <typename Map, typename = void>
struct IsWalkable : std::false_type {
};

template <typename Map>
struct IsWalkable<Map, std::void_t<decltype(std::declval<Map const&>().begin()->second),
                                   decltype(std::declval<Map const&>().end())>> : std::true_type {
};

/// The map itself. That one can walk through it is no promise of the platform; the stand-ins let
/// one.
template <typename Map>
Map const& walkable(Map const& map)
{
    static_assert(
        IsWalkable<Map>::value,
        "the maps of this platform cannot be walked: fromJson.h works on it, while values "
        "are written and compared on the stand-ins alone");
    return map;
}

} // namespace zel::kiv::testing::detail
