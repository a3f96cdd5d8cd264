#pragma once

#include "generator/model/Model.h"
#include "text/Printable.h"

#include <string>
#include <vector>

namespace kivgen {

/// Another place that a fault has to do with.
struct Mention {
    SourcePosition place;
    std::string text;
};

/// Something wrong in the definitions.
struct Fault {
    SourcePosition place;
    std::string text; ///< what is wrong and what would be right, without the place
    std::vector<Mention> also = {};
    bool isCause = false; ///< others may come of it, so it is told before them
};

using Faults = std::vector<Fault>;

/// What a user reads: `services/radio/Presets.toml:5:11: error: unknown kind …`, and a line for
/// each other place, such as `services/radio/Presets.toml:2:1: note: …`. Line and column are left
/// out where the file as a whole is meant.
std::string toMessage(Fault const& fault);

using kiv::inQuotes;
using kiv::printable;

} // namespace kivgen
