#include "json/Places.h"

#include <algorithm>

namespace kiv::json {

std::span<Places::Place const> Places::below(data::Value const& holder) const
{
    auto const found = m_places.find(&holder);
    if (found == m_places.end()) {
        return {};
    }
    return found->second;
}

Places::Place const* Places::find(data::Object const& holder, std::string_view key) const
{
    auto const places = below(holder);
    auto const found = std::find_if(places.rbegin(), places.rend(),
                                    [key](Place const& place) { return place.key == key; });
    return found == places.rend() ? nullptr : &*found;
}

} // namespace kiv::json
