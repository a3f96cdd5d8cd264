#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace fuzz {

/// Decisions drawn from the bytes of a fuzzer. When they run out every decision is the first one,
/// so that whatever grows by decisions comes to an end.
class Bytes {
public:
    explicit Bytes(std::span<std::uint8_t const> bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool empty() const { return m_bytes.empty(); }

    std::uint8_t byte()
    {
        if (m_bytes.empty()) {
            return 0;
        }
        std::uint8_t const first = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return first;
    }

    /// A number below `limit`, which is at most 65536 and not 0.
    std::size_t below(std::size_t limit)
    {
        std::size_t const number =
            limit <= 256 ? byte() : byte() + 256U * static_cast<std::size_t>(byte());
        return number % limit;
    }

    /// Any value of a plain type, bit by bit.
    template <typename Number>
    Number bits()
    {
        std::uint8_t raw[sizeof(Number)];
        for (std::uint8_t& each : raw) {
            each = byte();
        }
        Number number{};
        std::memcpy(&number, raw, sizeof number);
        return number;
    }

    /// Up to `most` bytes as they are.
    std::string text(std::size_t most)
    {
        std::size_t const wanted = below(most + 1);
        std::string text;
        while (text.size() < wanted && !empty()) {
            text.push_back(static_cast<char>(byte()));
        }
        return text;
    }

private:
    std::span<std::uint8_t const> m_bytes;
};

} // namespace fuzz
