#pragma once

#include "values/PlatformApi.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace zel::dataformats::data {
class Object;
class Value;
} // namespace zel::dataformats::data

namespace zel::common::types {

class EntryBlock;
class EntryDirectory;

/// The entries of an `Object`: keys in ascending `std::string` order, each with an untyped pointer
/// to its value. The pointer is that of a `V`, so `static_cast<V*>(entry.second)` gives it back; it
/// may be null. The values belong to the object; what is read here is never freed by the reader.
/// A `setNew` on the object makes all iterators invalid.
/// No operation throws. Any number of threads may read at the same time.
///
/// It exists for `std::string` and `Value` alone.
template <typename K, typename V>
class ZEL_PLATFORM_API PtrMap {
public:
    struct Entry {
        K first;
        void* second;
    };

    /// A forward iterator in ascending key order.
    class ZEL_PLATFORM_API const_iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Entry;
        using difference_type = std::ptrdiff_t;
        using pointer = Entry const*;
        using reference = Entry const&;

        const_iterator() noexcept = default;

        Entry const& operator*() const noexcept { return *m_entry; }
        Entry const* operator->() const noexcept { return m_entry; }
        const_iterator& operator++() noexcept;
        // NOLINTNEXTLINE(cert-dcl21-cpp): what a standard iterator returns.
        const_iterator operator++(int) noexcept
        {
            const_iterator before = *this;
            ++*this;
            return before;
        }

        friend bool operator==(const_iterator left, const_iterator right) noexcept
        {
            return left.m_entry == right.m_entry;
        }
        friend bool operator!=(const_iterator left, const_iterator right) noexcept
        {
            return left.m_entry != right.m_entry;
        }

    private:
        friend class PtrMap;
        const_iterator(Entry const* entry, EntryBlock const* block) noexcept
            : m_entry{entry}, m_block{block}
        {
        }

        Entry const* m_entry = nullptr;
        EntryBlock const* m_block = nullptr;
    };

    using key_type = K;
    using value_type = Entry;
    using iterator = const_iterator;

    PtrMap(PtrMap const&) = delete;
    PtrMap& operator=(PtrMap const&) = delete;

    /// The entry under `key`, or `end()` if there is none. An entry whose pointer is null is found
    /// like any other.
    const_iterator find(K const& key) const noexcept;

    const_iterator begin() const noexcept;
    const_iterator end() const noexcept { return {}; }
    std::size_t size() const noexcept;
    bool empty() const noexcept { return m_first == nullptr; }

private:
    friend class zel::dataformats::data::Object;

    PtrMap() noexcept = default;
    ~PtrMap() = default;

    void*& slot(std::string_view key);
    EntryBlock* detach() noexcept;

    void*& append(std::string_view key);
    void*& insert(std::string_view key);
    EntryBlock* blockFor(std::string_view key) const noexcept;
    void split(EntryBlock* block);
    void reserveBlock();
    void addBlockAfter(EntryBlock* previous, EntryBlock* block) noexcept;
    void countEntry() noexcept;

    EntryBlock* m_first = nullptr;
    EntryBlock* m_last = nullptr;
    EntryDirectory* m_directory = nullptr;
};

extern template class PtrMap<std::string, zel::dataformats::data::Value>;

} // namespace zel::common::types
