#include "generator/model/ServiceFile.h"

#include "catalogue/Group.h"
#include "generator/model/Rows.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <array>

namespace kivgen {
namespace {

using zel::kiv::catalogue::groups;

std::string allGroups()
{
    std::string text;
    for (auto const group : groups) {
        text += text.empty() ? "" : group == groups.back() ? " or " : ", ";
        text += inQuotes(group);
    }
    return text;
}

void readGroup(Entry const& row, Service& service, Faults& faults)
{
    auto const* const group = textOf(row, faults);
    if (group == nullptr) {
        return;
    }
    service.group = *group;
    if (std::ranges::find(groups, *group) == groups.end()) {
        auto const meant = kiv::didYouMean(*group, groups);
        faults.push_back({row.value.place, "unknown group " + inQuotes(*group) +
                                               (meant.empty() ? "; it is " + allGroups() : meant)});
    }
}

} // namespace

ServiceFile readServiceFile(Node const& document, std::string const& service,
                            SourcePosition const& file, Faults& faults)
{
    constexpr std::array<std::string_view, 2> known{"about", "group"};
    constexpr std::size_t longestAbout = 400;
    constexpr auto says = "it says in a sentence or two what the service is for";
    ServiceFile result{{service, {}, {}, file}, {}};
    checkKeys(document, known, "; a service has 'about' and 'group'", faults);
    if (auto const* const about = find(document, "about")) {
        result.about = readProse(*about, {"'about'", says, longestAbout}, faults);
        result.service.about = result.about.text;
    } else if (document.isWhole) {
        std::string const missing = "'about' is missing; ";
        faults.push_back({file, missing + says});
    }
    if (auto const* const group = find(document, "group")) {
        readGroup(*group, result.service, faults);
    } else if (document.isWhole) {
        faults.push_back({file, "'group' is missing; it is " + allGroups()});
    }
    return result;
}

} // namespace kivgen
