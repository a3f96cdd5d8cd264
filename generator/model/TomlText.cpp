#include "generator/model/TomlText.h"

#include <algorithm>
#include <utility>

namespace kivgen {
namespace {

constexpr std::size_t longestLine = 1000; // bytes
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isPlain(char byte)
{
    return (byte >= ' ' && byte <= '~') || byte == '\t' || byte == '\n' || byte == '\r';
}

bool isContinued(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The bytes that are one character, if it is none of ASCII.
std::string_view characterAt(std::string_view line, std::size_t place)
{
    auto end = place + 1;
    while (end < line.size() && isContinued(line[end])) {
        ++end;
    }
    return line.substr(place, end - place);
}

} // namespace

TomlText::TomlText(std::string text, std::string name)
    : m_text(std::move(text)), m_name(std::move(name))
{
}

/// Keeps from toml++ what it cannot bear: its tables of other characters end in undefined behaviour
/// for some of them. So definitions are ASCII, which also keeps out characters that deceive the
/// eye.
void TomlText::leaveOutUnreadable(Faults& faults)
{
    if (m_text.starts_with(byteOrderMark)) {
        faults.push_back({{m_name, 1, 1},
                          "the file begins with a byte order mark; save it as UTF-8 without one"});
        m_text.erase(0, byteOrderMark.size());
    }
    std::size_t number = 1;
    for (std::size_t begin = 0; begin < m_text.size(); ++number) {
        auto const end = std::min(m_text.find('\n', begin), m_text.size());
        checkLine(number, std::string_view(m_text).substr(begin, end - begin), faults);
        // The line may have been left out, and is shorter then.
        begin = std::min(m_text.find('\n', begin), m_text.size()) + 1;
    }
}

void TomlText::checkLine(std::size_t number, std::string_view line, Faults& faults)
{
    auto const place =
        static_cast<std::size_t>(std::ranges::find_if_not(line, isPlain) - line.begin());
    if (place > longestLine) {
        faults.push_back(
            {{m_name, number, longestLine + 1},
             "the line is longer than " + std::to_string(longestLine) + " bytes; break it up"});
    } else if (place == line.size()) {
        return;
    } else {
        bool const isKey = line.substr(0, place).find_first_of("=\"#[") == std::string_view::npos;
        auto const* const advice = isKey ? "; a key is of ASCII letters and digits"
                                         : "; in a text another character is written as an "
                                           "escape, such as \\u00b0";
        faults.push_back({{m_name, number, place + 1},
                          "the character " + inQuotes(characterAt(line, place)) +
                              " is not plain ASCII" + advice});
    }
    leaveOut(number);
}

std::size_t TomlText::beginOf(std::size_t number) const
{
    std::size_t begin = 0;
    for (std::size_t line = 1; line < number && begin < m_text.size(); ++line) {
        begin = std::min(m_text.find('\n', begin), m_text.size() - 1) + 1;
    }
    return begin;
}

std::string_view TomlText::line(std::size_t number) const
{
    auto const begin = beginOf(number);
    return std::string_view(m_text).substr(begin, m_text.find('\n', begin) - begin);
}

bool TomlText::leaveOut(std::size_t number)
{
    auto const begin = beginOf(number);
    auto const first = m_text.find_first_not_of(" \t\r", begin);
    if (first == std::string::npos || m_text[first] == '\n') {
        return false;
    }
    auto const end = m_text[first] == '[' ? std::string::npos : m_text.find('\n', begin);
    m_text.erase(begin, end == std::string::npos ? end : end - begin);
    m_isWhole = false;
    return true;
}

} // namespace kivgen
