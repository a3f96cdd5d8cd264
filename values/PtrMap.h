#pragma once

#include "values/PlatformApi.h"

#include <cstddef>
#include <map>
#include <string>

namespace zel::dataformats::data {
class Object;
class Value;
} // namespace zel::dataformats::data

namespace zel::common::types {

/// The entries of an `Object`: keys in ascending `std::string` order, each with an untyped pointer
/// to its value. The pointer is that of a `V`, so `static_cast<V*>(entry.second)` gives it back; it
/// may be null. The values belong to the object; what is read here is never freed by the reader.
/// No operation throws. Any number of threads may read at the same time.
///
/// It exists for `std::string` and `Value` alone.
template <typename K, typename V>
class ZEL_PLATFORM_API PtrMap {
public:
    using Map = std::map<K, void*>;
    using const_iterator = typename Map::const_iterator;
    using value_type = typename Map::value_type;

    PtrMap(PtrMap const&) = delete;
    PtrMap& operator=(PtrMap const&) = delete;

    /// The entry under `key`, or `end()` if there is none. An entry whose pointer is null is found
    /// like any other.
    const_iterator find(K const& key) const noexcept;

    const_iterator begin() const noexcept { return m_entries.begin(); }
    const_iterator end() const noexcept { return m_entries.end(); }
    std::size_t size() const noexcept { return m_entries.size(); }
    bool empty() const noexcept { return m_entries.empty(); }

private:
    friend class zel::dataformats::data::Object;

    PtrMap() = default;
    ~PtrMap() = default;

    Map m_entries;
};

extern template class PtrMap<std::string, zel::dataformats::data::Value>;

} // namespace zel::common::types
