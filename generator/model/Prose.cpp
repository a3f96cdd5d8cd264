#include "generator/model/Prose.h"

#include "generator/model/Rows.h"

#include <string_view>

namespace kivgen {
namespace {

/// What is wrong with the form of a text, or nothing.
std::string whatIsWrong(std::string const& text, ProseRule const& rule)
{
    if (text.find_first_not_of(' ') == std::string::npos) {
        return rule.what + " is empty; " + rule.says;
    }
    if (text.size() > rule.longest) {
        return rule.what + " has " + std::to_string(text.size()) + " bytes; " + rule.says +
               ", with at most " + std::to_string(rule.longest);
    }
    if (printable(text) != text || text.find('\\') != std::string::npos) {
        // It becomes a comment, where a backslash at the end would swallow the next line.
        return rule.what +
               " must be one line without backslashes and characters that cannot be "
               "seen: " +
               inQuotes(text);
    }
    if (!text.ends_with('.')) {
        return rule.what + " must end in a full stop";
    }
    return {};
}

} // namespace

Prose readProse(Entry const& row, ProseRule const& rule, Faults& faults)
{
    auto const* const text = textOf(row, faults);
    if (text == nullptr) {
        return {};
    }
    if (auto wrong = whatIsWrong(*text, rule); !wrong.empty()) {
        faults.push_back({row.value.place, std::move(wrong)});
    }
    Prose prose{row.value.place, *text, {}};
    for (auto open = text->find('`'); open != std::string::npos; open = text->find('`', open)) {
        auto const close = text->find('`', open + 1);
        if (close == std::string::npos) {
            faults.push_back({prose.place, rule.what + " has a backtick that is not closed"});
            break;
        }
        prose.names.push_back(text->substr(open + 1, close - open - 1));
        open = close + 1;
    }
    return prose;
}

} // namespace kivgen
