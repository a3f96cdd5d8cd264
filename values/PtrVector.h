#pragma once

#include <cstddef>
#include <vector>

namespace zel::dataformats::data {
class Array;
} // namespace zel::dataformats::data

namespace zel::common::types {

/// The entries of an `Array`: a contiguous sequence of pointers, in the order of `pushNew`.
/// An entry may be null. The values belong to the array; what is read here is never freed by the
/// reader. A `pushNew` on the array makes all pointers from `begin` and `end` invalid.
/// No operation throws. Any number of threads may read at the same time.
template <typename V>
class PtrVector {
public:
    using value_type = V*;
    using const_iterator = V* const*;

    PtrVector(PtrVector const&) = delete;
    PtrVector& operator=(PtrVector const&) = delete;

    const_iterator begin() const noexcept { return m_entries.data(); }
    const_iterator end() const noexcept { return m_entries.data() + m_entries.size(); }
    std::size_t size() const noexcept { return m_entries.size(); }
    bool empty() const noexcept { return m_entries.empty(); }

    /// The entry at `index`, which must be below `size()`.
    V* operator[](std::size_t index) const noexcept { return m_entries[index]; }

private:
    friend class zel::dataformats::data::Array;

    PtrVector() = default;
    ~PtrVector() = default;

    std::vector<V*> m_entries;
};

} // namespace zel::common::types
