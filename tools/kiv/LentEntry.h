#pragma once

#include "json/JsonReader.h"

namespace kiv {

/// An entry whose value belongs to what it stands in.
class LentEntry {
public:
    LentEntry(data::Value* value, json::Position position, std::size_t index)
        : m_entry{std::unique_ptr<data::Value>(value), position, index, {}}
    {
    }
    LentEntry(LentEntry const&) = delete;
    LentEntry(LentEntry&&) = delete;
    LentEntry& operator=(LentEntry const&) = delete;
    LentEntry& operator=(LentEntry&&) = delete;
    ~LentEntry() { static_cast<void>(m_entry.value.release()); }

    json::Entry& get() { return m_entry; }

private:
    json::Entry m_entry;
};

} // namespace kiv
