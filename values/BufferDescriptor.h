#pragma once

#include <cstddef>

namespace zel::common::types {

/// A view of `size()` characters at `data()`, passed by value. It owns nothing, is not terminated
/// by a zero, may hold zeros, and is good for as long as the value that handed it out.
/// `data()` may be null only when `size()` is 0.
template <typename C>
class BufferDescriptor {
public:
    constexpr BufferDescriptor() noexcept = default;
    constexpr BufferDescriptor(C* data, std::size_t size) noexcept : m_data{data}, m_size{size} {}

    constexpr C* data() const noexcept { return m_data; }
    constexpr std::size_t size() const noexcept { return m_size; }

private:
    C* m_data = nullptr;
    std::size_t m_size = 0;
};

} // namespace zel::common::types
