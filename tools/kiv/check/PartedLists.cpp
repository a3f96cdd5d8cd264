#include "tools/kiv/check/PartedLists.h"

#include "frame/IObjectBase.h"
#include "json/Maps.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kiv {

void PartedLists::read(DocumentPart const& given, std::function<void(Placed& placed)> const& adapt)
{
    List& list = m_lists[given.part.key];
    if (given.part.first == 0) {
        list = {};
    }
    auto const& entries = entriesOf(static_cast<data::Array const&>(*given.part.array));
    bool const takes = std::ranges::any_of(
        entries, [](data::Value const* const entry) { return entry != nullptr; });
    static_cast<void>(readPart(
        given,
        [&](diagnostics::Finding const& finding, Locator const& locator) {
            list.findings.push_back({locator.positionOf(finding), finding});
            adapt(list.findings.back());
        },
        list.hasTaken));
    list.hasTaken = list.hasTaken || takes;
}

std::vector<diagnostics::ListPart> PartedLists::finish(json::GivenParts const& given,
                                                       std::vector<Placed>& findings)
{
    std::vector<diagnostics::ListPart> parts;
    for (auto const& [key, count] : given) {
        List& list = m_lists[key]; // none if the element does not know the key
        std::ranges::move(list.findings, std::back_inserter(findings));
        parts.push_back({key, count, list.hasTaken, true});
    }
    m_lists.clear();
    return parts;
}

} // namespace kiv
