#pragma once

#include <array>
#include <string_view>

namespace kiv::diagnostics {

/// The time of day as findings and records have it: `2026-03-01T12:30:00.250Z`.
class TimeText {
public:
    /// Takes the time that it is. May be called by a signal handler.
    TimeText();

    [[nodiscard]] std::string_view view() const { return {m_text.data(), m_text.size()}; }

private:
    std::array<char, 24> m_text{};
};

} // namespace kiv::diagnostics
