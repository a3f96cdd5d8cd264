#pragma once

#include "values/PlatformApi.h"

#include <cstddef>

namespace zel::dataformats::data {
class Array;
class Value;
} // namespace zel::dataformats::data

namespace zel::common::types {

class PointerBlock;

/// The entries of an `Array`: a contiguous sequence of pointers, in the order of `pushNew`.
/// An entry may be null. The values belong to the array; what is read here is never freed by the
/// reader. A `pushNew` on the array makes all pointers from `begin` and `end` invalid.
/// No operation throws. Any number of threads may read at the same time.
template <typename V>
class ZEL_PLATFORM_API PtrVector {
public:
    using value_type = V*;
    using const_iterator = V* const*;

    PtrVector(PtrVector const&) = delete;
    PtrVector& operator=(PtrVector const&) = delete;

    const_iterator begin() const noexcept { return m_entries; }
    const_iterator end() const noexcept { return m_entries + m_size; }
    std::size_t size() const noexcept { return m_size; }
    bool empty() const noexcept { return m_size == 0; }

    /// The entry at `index`, which must be below `size()`.
    V* operator[](std::size_t index) const noexcept { return m_entries[index]; }

private:
    friend class zel::dataformats::data::Array;

    PtrVector() noexcept = default;
    ~PtrVector() = default;

    void reserve(std::size_t capacity);
    void push(V* value);
    PointerBlock* detach() noexcept;

    V** m_entries = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

extern template class PtrVector<zel::dataformats::data::Value>;

} // namespace zel::common::types
