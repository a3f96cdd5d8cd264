#pragma once

#include "json/Position.h"

#include <string>
#include <string_view>

namespace kiv {

/// What becomes of a value that does not fit.
enum class Fate {
    Lost,      ///< nothing of it arrives
    Changed,   ///< another value arrives
    Invented,  ///< something arrives that the document does not hold
    Suspect,   ///< it arrives as it stands, but was hardly meant so
    Forbidden, ///< the library must never be given it
};

/// The word of a fate, as it stands in front of a finding.
constexpr std::string_view wordOf(Fate fate)
{
    switch (fate) {
    case Fate::Lost:
        return "lost";
    case Fate::Changed:
        return "changed";
    case Fate::Invented:
        return "invented";
    case Fate::Suspect:
        return "suspect";
    case Fate::Forbidden:
        return "error";
    }
    return "";
}

/// One place in a document where the library does something else than its author thinks.
struct Finding {
    Fate fate;
    json::Position position;
    std::string path;    ///< `[3].station.uri`
    std::string stands;  ///< what stands there: `text where a number is wanted (int)`
    std::string becomes; ///< what the library makes of it: `it reads as 0`
    std::string meant;   ///< what was probably meant, or empty: `did you mean 'position'?`
};

} // namespace kiv
