#include "Console.h"

#include "Failure.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace kiv {

Output::Output(int descriptor) : m_descriptor(descriptor)
{
    m_buffer.reserve(bufferSize);
}

void Output::write(std::string_view text)
{
    m_buffer.append(text);
    if (m_buffer.size() >= bufferSize) {
        flush();
    }
}

void Output::flush()
{
    if (m_text != nullptr) {
        m_text->append(m_buffer);
        m_buffer.clear();
        return;
    }
    std::string_view rest = m_buffer;
    while (!rest.empty()) {
        ssize_t const written = ::write(m_descriptor, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throw Failure(std::string("cannot write the output: ") + std::strerror(errno));
        }
    }
    m_buffer.clear();
}

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

std::string counted(std::size_t number, std::string_view noun)
{
    std::string text = std::to_string(number);
    for (std::size_t end = text.size(); end > 3; end -= 3) {
        text.insert(end - 3, ",");
    }
    text.append(" ").append(noun);
    return number == 1 ? text : text + "s";
}

std::string listed(std::vector<std::string> const& words, std::string_view last)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) {
            text.append(i + 1 < words.size() ? ", " : " " + std::string(last) + " ");
        }
        text.append(words[i]);
    }
    return text;
}

} // namespace kiv
