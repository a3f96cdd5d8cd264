#include "diagnostics/Ignored.h"

#include "text/Suggestion.h"

#include <algorithm>

namespace kiv::diagnostics {

namespace {

/// What stands before the first `mark`, and what stands behind it.
std::pair<std::string_view, std::string_view> splitAt(std::string_view text, char mark)
{
    auto const at = text.find(mark);
    return at == std::string_view::npos ? std::pair(text, std::string_view())
                                        : std::pair(text.substr(0, at), text.substr(at + 1));
}

} // namespace

std::string Ignored::add(std::string_view text)
{
    std::string fault;
    while (!text.empty()) {
        auto const [part, rest] = splitAt(text, ',');
        if (!part.empty() && fault.empty()) {
            fault = addOne(part);
        } else if (!part.empty()) {
            addOne(part);
        }
        text = rest;
    }
    return fault;
}

std::string Ignored::addOne(std::string_view part)
{
    auto const [name, where] = splitAt(part, ':');
    auto const* const row = std::ranges::find(ids, name, &IdRow::name);
    if (row == ids.end()) {
        std::vector<std::string_view> known;
        std::ranges::transform(ids, std::back_inserter(known), &IdRow::name);
        return "no finding has the id '" + std::string(name) + "'" + didYouMean(name, known);
    }
    auto const [resource, key] = splitAt(where, '.');
    m_rules.push_back({row->id, std::string(resource), std::string(key)});
    return {};
}

bool Ignored::holds(Finding const& finding) const
{
    return std::ranges::any_of(m_rules, [&](Rule const& rule) {
        return rule.id == finding.id &&
               (rule.resource.empty() || rule.resource == nameOf(finding.holder)) &&
               (rule.key.empty() || rule.key == finding.key);
    });
}

} // namespace kiv::diagnostics
