#pragma once

#include "generator/model/Fault.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kivgen {

/// The text of a definition file, of which lines that cannot be read may be left out, so that the
/// others still are. Each line keeps its number.
class TomlText {
public:
    /// `name` is the file as messages show it.
    TomlText(std::string text, std::string name);

    /// Leaves out what is no plain ASCII or too long, and adds a fault for each line of them.
    void leaveOutUnreadable(Faults& faults);

    /// Leaves the line out, `number` counting from 1; from a table's head on all that follows,
    /// since nobody knows what it belongs to. False if there is nothing to leave out.
    bool leaveOut(std::size_t number);

    [[nodiscard]] std::string_view line(std::size_t number) const;
    /// All lines above that one.
    [[nodiscard]] std::string_view above(std::size_t number) const
    {
        return std::string_view(m_text).substr(0, beginOf(number));
    }
    [[nodiscard]] std::string const& text() const { return m_text; }
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    [[nodiscard]] std::size_t beginOf(std::size_t number) const;
    void checkLine(std::size_t number, std::string_view line, Faults& faults);

    std::string m_text;
    std::string m_name;
    bool m_isWhole = true;
};

} // namespace kivgen
