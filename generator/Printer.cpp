#include "generator/Printer.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kivgen {

namespace {

Block const& valueOf(std::string_view name, Slots const& slots)
{
    auto const slot = std::find_if(slots.begin(), slots.end(),
                                   [&](auto const& each) { return each.first == name; });
    if (slot == slots.end()) {
        throw std::logic_error("a template names the slot '" + std::string(name) +
                               "', which nothing fills");
    }
    return slot->second;
}

std::string fillLine(std::string_view line, Slots const& slots)
{
    std::string result;
    while (true) {
        auto const begin = line.find('$');
        result += line.substr(0, begin);
        if (begin == std::string_view::npos) {
            return result;
        }
        auto const end = line.find('$', begin + 1);
        if (end == std::string_view::npos) {
            throw std::logic_error("a template has a single '$': " + std::string(line));
        }
        std::string_view const name = line.substr(begin + 1, end - begin - 1);
        std::string const word = valueOf(name, slots).at(0);
        auto const wordEnd = word.find('\n');
        if (wordEnd + 1 < word.size()) {
            throw std::logic_error("lines where a word is meant: $" + std::string(name) + '$');
        }
        result += word.substr(0, wordEnd);
        line.remove_prefix(end + 1);
    }
}

bool isOneSlot(std::string_view line)
{
    return line.size() > 2 && line.front() == '$' && line.find('$', 1) == line.size() - 1;
}

/// The next line of the text, without its end, taken off the text.
std::string_view takeLine(std::string_view& text)
{
    auto const end = text.find('\n');
    auto const line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

/// The line moved to the right, with its end.
std::string moved(std::string_view line, std::size_t column)
{
    return (line.empty() ? "" : std::string(column, ' ')) + std::string(line) + '\n';
}

std::string filledTemplate(std::string_view text, Slots const& slots, std::size_t column)
{
    // Raw strings begin with a line end, so that they may stand flush left.
    if (!text.empty() && text.front() == '\n') {
        text.remove_prefix(1);
    }
    std::string result;
    while (!text.empty()) {
        std::string_view const line = takeLine(text);
        auto const left = std::min(line.find_first_not_of(' '), line.size());
        std::string_view const content = line.substr(left);
        result += isOneSlot(content)
                      ? valueOf(content.substr(1, content.size() - 2), slots).at(column + left)
                      : moved(fillLine(line, slots), column);
    }
    return result;
}

/// Items that fill lines which begin at column `left`; the first one stands at column `used`.
std::string filled(std::size_t left, std::size_t used, std::vector<std::string> const& items,
                   std::string_view separator, std::string_view tail)
{
    std::string result;
    std::size_t column = used;
    for (std::size_t i = 0; i < items.size(); ++i) {
        bool const last = i + 1 == items.size();
        std::string const item = items[i] + std::string(last ? tail : separator);
        auto const blank = static_cast<std::size_t>(i == 0 ? 0 : 1);
        if (i > 0 && column + blank + item.size() > columns) {
            result += '\n' + std::string(left, ' ');
            column = left;
        } else if (i > 0) {
            result += ' ';
            ++column;
        }
        result += item;
        column += item.size();
    }
    return result;
}

} // namespace

Block::Block(std::string text)
{
    if (!text.empty()) {
        m_parts.emplace_back([text = std::move(text)](std::size_t column) {
            std::string result;
            std::string_view rest = text;
            while (!rest.empty()) {
                result += moved(takeLine(rest), column);
            }
            return result;
        });
    }
}

Block Block::of(Layout layout)
{
    Block block;
    block.m_parts.push_back(std::move(layout));
    return block;
}

Block& Block::operator+=(Block const& other)
{
    m_parts.insert(m_parts.end(), other.m_parts.begin(), other.m_parts.end());
    return *this;
}

std::string Block::at(std::size_t column) const
{
    std::string result;
    for (Layout const& each : m_parts) {
        result += each(column);
    }
    return result;
}

Block fill(std::string_view text, Slots slots)
{
    return Block::of([text, slots = std::move(slots)](std::size_t column) {
        return filledTemplate(text, slots, column);
    });
}

Block comment(std::string text)
{
    return Block::of([text = std::move(text)](std::size_t column) {
        std::string const start = std::string(column, ' ') + "///";
        std::string result;
        std::string line = start;
        std::string_view rest = text;
        while (!rest.empty()) {
            auto const end = std::min(rest.find(' '), rest.size());
            std::string_view const word = rest.substr(0, end);
            rest.remove_prefix(std::min(end + 1, rest.size()));
            if (line.size() > start.size() && line.size() + 1 + word.size() > columns) {
                result += line + '\n';
                line = start;
            }
            line += ' ';
            line += word;
        }
        return result + line + '\n';
    });
}

Block wrapped(std::string const& head, std::vector<std::string> const& items,
              std::string const& separator, std::string const& tail)
{
    auto const longest =
        std::max_element(items.begin(), items.end(), [](auto const& one, auto const& other) {
            return one.size() < other.size();
        })->size();
    auto const end = std::max(separator.size(), tail.size());
    return Block::of([=](std::size_t column) {
        std::string const start = std::string(column, ' ') + head;
        if (start.size() + longest + end <= columns) {
            return start + filled(start.size(), start.size(), items, separator, tail) + '\n';
        }
        std::size_t const left = column + 4;
        return start + '\n' + std::string(left, ' ') + filled(left, left, items, separator, tail) +
               '\n';
    });
}

} // namespace kivgen
