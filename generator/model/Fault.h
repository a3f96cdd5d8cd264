#pragma once

#include "generator/model/Model.h"
#include "text/Printable.h"

#include <string>
#include <vector>

namespace kivgen {

/// Something wrong in the definitions.
struct Fault {
    SourcePosition place;
    std::string text; ///< what is wrong and what would be right, without the place
};

using Faults = std::vector<Fault>;

/// The line that a user reads: `services/radio/Presets.toml:5:11: error: unknown kind …`. Line and
/// column are left out of a fault of the file as a whole.
std::string toMessage(Fault const& fault);

using kiv::inQuotes;
using kiv::printable;

} // namespace kivgen
