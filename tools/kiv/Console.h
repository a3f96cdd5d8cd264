#pragma once

#include "text/Failure.h"
#include "text/Output.h"

#include <string>
#include <string_view>
#include <vector>

namespace kiv {

/// Marks up text for a terminal, or leaves it as it is.
class Style {
public:
    /// Colour goes to terminals alone, and to none if `NO_COLOR` is set or the terminal is dumb.
    explicit Style(int descriptor);

    [[nodiscard]] std::string strong(std::string_view text) const { return marked("1", text); }
    [[nodiscard]] std::string error(std::string_view text) const { return marked("1;31", text); }

private:
    [[nodiscard]] std::string marked(std::string_view code, std::string_view text) const;

    bool m_colour;
};

/// Whether the descriptor is a terminal that does what escape sequences say.
bool redraws(int descriptor);

/// Says on standard error what is wrong, and where.
void complain(std::string const& where, std::string const& what);

/// Where a command prints its result.
struct Console {
    Output output;
    Style style;

    /// Says what is wrong, behind what was printed so far.
    void complain(Failure const& failure)
    {
        output.flush();
        kiv::complain(failure.where(), failure.what());
    }
};

/// Rows of text in aligned columns. The first column is printed strong.
class Table {
public:
    void add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
    [[nodiscard]] bool empty() const noexcept { return m_rows.empty(); }
    void print(Console& console, std::string_view indent = "") const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace kiv
