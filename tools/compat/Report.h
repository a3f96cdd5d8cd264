#pragma once

#include "json/Make.h"
#include "tools/compat/Version.h"

#include <optional>
#include <string>
#include <vector>

namespace compat {

/// What came of a comparison.
struct Report {
    std::vector<Change> changes;
    std::optional<Version> was; ///< the release of the old side, if it tells
};

/// Which version comes next, in words: `2.0.0, a major one: the SONAME changes`.
std::string nextInWords(Report const& report);

/// What has changed: the rule's words, and what is to be said of this case.
std::string inWords(Change const& change);

/// A place as messages show it: `services/radio/Presets.toml:5:1`.
std::string toText(kivgen::SourcePosition const& place);

/// The report for programs.
kiv::json::ValuePointer toJson(Report const& report);

/// The report as a part of a changelog.
std::string toMarkdown(Report const& report);

/// The rules for programs.
kiv::json::ValuePointer rulesToJson();

} // namespace compat
