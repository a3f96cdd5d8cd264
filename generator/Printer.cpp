#include "generator/Printer.h"

#include <algorithm>
#include <stdexcept>

namespace kivgen {

namespace {

std::string_view valueOf(std::string_view name, Slots slots)
{
    auto const* const slot = std::find_if(slots.begin(), slots.end(),
                                          [&](auto const& each) { return each.first == name; });
    if (slot == slots.end()) {
        throw std::logic_error("a template names the slot '" + std::string(name) +
                               "', which nothing fills");
    }
    return slot->second;
}

std::string fillLine(std::string_view line, Slots slots)
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
        result += valueOf(line.substr(begin + 1, end - begin - 1), slots);
        line.remove_prefix(end + 1);
    }
}

bool isOneSlot(std::string_view line)
{
    return line.size() > 2 && line.front() == '$' && line.find('$', 1) == line.size() - 1;
}

bool ends(std::string_view text, char last)
{
    return !text.empty() && text.back() == last;
}

/// The next line of the text, without its end, taken off the text.
std::string_view takeLine(std::string_view& text)
{
    auto const end = text.find('\n');
    auto const line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

/// Items from `first` on, filling lines that begin at column `left`.
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

std::string fill(std::string_view text, Slots slots)
{
    // Raw strings begin with a line end, so that they may stand flush left.
    if (!text.empty() && text.front() == '\n') {
        text.remove_prefix(1);
    }
    std::string result;
    while (!text.empty()) {
        std::string_view const line = takeLine(text);
        std::string const made = fillLine(line, slots);
        if (made.empty() && isOneSlot(line)) {
            continue;
        }
        result += made;
        // A block brings its own line end along.
        if (!(isOneSlot(line) && ends(made, '\n'))) {
            result += '\n';
        }
    }
    return result;
}

std::string indented(std::string_view text, std::size_t by)
{
    std::string result;
    while (!text.empty()) {
        std::string_view const line = takeLine(text);
        if (!line.empty()) {
            result += std::string(by, ' ');
        }
        result += line;
        result += '\n';
    }
    return result;
}

std::string comment(std::string_view text, std::size_t indent)
{
    std::string const start = std::string(indent, ' ') + "///";
    std::string result;
    std::string line = start;
    while (!text.empty()) {
        auto const end = std::min(text.find(' '), text.size());
        std::string_view const word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.size() > start.size() && line.size() + 1 + word.size() > columns) {
            result += line + '\n';
            line = start;
        }
        line += ' ';
        line += word;
    }
    return result + line + '\n';
}

std::string wrapped(std::size_t indent, std::string_view head,
                    std::vector<std::string> const& items, std::string_view separator,
                    std::string_view tail)
{
    std::string const start = std::string(indent, ' ') + std::string(head);
    auto const longest =
        std::max_element(items.begin(), items.end(), [](auto const& one, auto const& other) {
            return one.size() < other.size();
        })->size();
    auto const end = std::max(separator.size(), tail.size());
    if (start.size() + longest + end <= columns) {
        return start + filled(start.size(), start.size(), items, separator, tail) + '\n';
    }
    std::size_t const left = indent + 4;
    return start + '\n' + std::string(left, ' ') + filled(left, left, items, separator, tail) +
           '\n';
}

} // namespace kivgen
