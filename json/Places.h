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
    /// A key of an object and its value.
    struct Place {
        std::string key;
        Position keyPosition;
        Position position;
    };

    /// Notes that `holder` is a new array or object. What was noted of one that lay at the same
    /// address, and was freed, is forgotten.
    void start(data::Value const* holder)
    {
        m_keys.erase(holder);
        m_entries.erase(holder);
    }
    void addKey(data::Value const* object, Place place)
    {
        m_keys[object].push_back(std::move(place));
    }
    void addEntry(data::Value const* array, Position position)
    {
        m_entries[array].push_back(position);
    }
    /// Adds the places below other arrays and objects, which are lost to `others`.
    void add(Places& others)
    {
        m_keys.merge(others.m_keys);
        m_entries.merge(others.m_entries);
        others.clear();
    }
    void clear()
    {
        m_keys.clear();
        m_entries.clear();
    }

    /// All places below an object in the order of the text, a repeated key each time that it stands
    /// there.
    [[nodiscard]] std::span<Place const> keysOf(data::Value const& object) const;

    /// The place of the value that counts for `key`, which is the last one, or null if the text has
    /// no such key.
    [[nodiscard]] Place const* find(data::Object const& holder, std::string_view key) const;

    /// The place of an entry of an array, which must have one.
    [[nodiscard]] Position entry(data::Value const& array, std::size_t index) const;

private:
    std::unordered_map<data::Value const*, std::vector<Place>> m_keys;
    std::unordered_map<data::Value const*, std::vector<Position>> m_entries;
};

} // namespace kiv::json
