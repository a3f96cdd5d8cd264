#pragma once

#include "json/Position.h"
#include "json/ValueNames.h"

#include <cstddef>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace kiv::json {

/// Where the values below an array or object stand in the text that they were read from. Values
/// themselves do not know, and a null has no value at all; so a place is found through what holds
/// it.
class Places {
public:
    /// A key and its value, or an entry of an array, which has no key.
    struct Place {
        std::string key;
        Position keyPosition;
        Position position;
    };

    /// Notes that `holder` is a new array or object. What was noted of one that lay at the same
    /// address, and was freed, is forgotten.
    void start(data::Value const* holder) { m_places[holder].clear(); }
    void add(data::Value const* holder, Place place)
    {
        m_places[holder].push_back(std::move(place));
    }
    void clear() { m_places.clear(); }

    /// All places below `holder` as the text has them: entries by index; of an object all keys in
    /// the order of the text, a repeated one each time that it stands there.
    [[nodiscard]] std::span<Place const> below(data::Value const& holder) const;

    /// The place of the value that counts for `key`, which is the last one, or null if the text has
    /// no such key.
    [[nodiscard]] Place const* find(data::Object const& holder, std::string_view key) const;

private:
    std::unordered_map<data::Value const*, std::vector<Place>> m_places;
};

} // namespace kiv::json
