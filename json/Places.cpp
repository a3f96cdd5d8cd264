#include "json/Places.h"

#include <algorithm>

namespace kiv::json {

std::span<Places::Place const> Places::keysOf(data::Value const& object) const
{
    auto const found = m_keys.find(&object);
    if (found == m_keys.end()) {
        return {};
    }
    return found->second;
}

Places::Place const* Places::find(data::Object const& holder, std::string_view key) const
{
    auto const places = keysOf(holder);
    auto const found = std::find_if(places.rbegin(), places.rend(),
                                    [key](Place const& place) { return place.key == key; });
    return found == places.rend() ? nullptr : &*found;
}

Position Places::entry(data::Value const& array, std::size_t index) const
{
    return m_entries.at(&array).at(index);
}

} // namespace kiv::json
