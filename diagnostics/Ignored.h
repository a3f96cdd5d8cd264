#pragma once

#include "diagnostics/Finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace kiv::diagnostics {

/// The findings that somebody does not want to hear of.
class Ignored {
public:
    /// Adds what a text says, parts between commas: `unknown-key`, `other-type:radio/presets`,
    /// `odd-uri:radio/presets.station`. The class is the one that has the key. Returns what is
    /// wrong with the text, or nothing; what is right of it counts all the same.
    std::string add(std::string_view text);

    [[nodiscard]] bool holds(Finding const& finding) const;

private:
    struct Rule {
        Id id;
        std::string resource; ///< empty: any
        std::string key;      ///< empty: any
    };

    std::string addOne(std::string_view part);

    std::vector<Rule> m_rules;
};

} // namespace kiv::diagnostics
