#include "tools/kiv/Console.h"

#include "text/Printable.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace kiv {

namespace {

bool hasValue(char const* variable)
{
    char const* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool takesColour(int descriptor)
{
    return !hasValue("NO_COLOR") && redraws(descriptor);
}

std::vector<std::size_t> columnWidths(std::vector<std::vector<std::string>> const& rows)
{
    std::vector<std::size_t> widths;
    for (auto const& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    return widths;
}

} // namespace

bool redraws(int descriptor)
{
    char const* const terminal = std::getenv("TERM");
    return isatty(descriptor) != 0 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

Style::Style(int descriptor) : m_colour(takesColour(descriptor)) {}

std::string Style::marked(std::string_view code, std::string_view text) const
{
    std::string result(text);
    if (m_colour) {
        result.insert(0, "\x1b[" + std::string(code) + "m").append("\x1b[0m");
    }
    return result;
}

void complain(std::string const& where, std::string const& what)
{
    Style const style(STDERR_FILENO);
    std::string const line =
        style.strong(printable(where) + ":") + " " + style.error("error:") + " " + printable(what);
    static_cast<void>(std::fprintf(stderr, "%s\n", line.c_str()));
}

void Table::print(Console& console, std::string_view indent) const
{
    std::vector<std::size_t> const widths = columnWidths(m_rows);
    for (auto const& row : m_rows) {
        std::string blanks(indent);
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!row[i].empty()) {
                console.output.write(blanks);
                console.output.write(i == 0 ? console.style.strong(row[i]) : row[i]);
                blanks.clear();
            }
            blanks.append(widths[i] - row[i].size() + 2, ' ');
        }
        console.output.put('\n');
    }
}

} // namespace kiv
