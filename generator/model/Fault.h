#pragma once

#include "generator/model/Model.h"

#include <string>
#include <string_view>
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

/// The text as a message may show it: control characters, characters that cannot be seen or that
/// change the direction of writing, and broken UTF-8 appear as `\x1b`.
std::string printable(std::string_view text);

/// The text between single quotes, printable, and cut short if it is long.
std::string inQuotes(std::string_view text);

} // namespace kivgen
