#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kiv::diagnostics {

/// A line that is put together without asking for memory, as a signal handler must. What does not
/// fit is left out, but for the line break.
class Line {
public:
    Line& operator<<(std::string_view text)
    {
        auto const room = m_text.size() - 1 - m_size;
        auto const count = text.size() < room ? text.size() : room;
        for (std::size_t i = 0; i < count; ++i) {
            m_text[m_size + i] = text[i];
        }
        m_size += count;
        return *this;
    }

    Line& operator<<(std::uint64_t number)
    {
        std::array<char, 20> digits{};
        auto const* const end =
            std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        return *this << std::string_view(digits.data(),
                                         static_cast<std::size_t>(end - digits.data()));
    }

    /// The line with a line break behind it.
    std::string_view ended()
    {
        m_text[m_size] = '\n';
        return {m_text.data(), m_size + 1};
    }

private:
    std::array<char, 4096> m_text{};
    std::size_t m_size = 0;
};

} // namespace kiv::diagnostics
