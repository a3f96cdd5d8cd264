#pragma once

#include "generator/model/Fault.h"
#include "generator/model/Model.h"

#include <filesystem>
#include <string>

namespace kivgen {

/// What came out of reading the definitions.
struct Loaded {
    Interface interface; ///< complete and right if there are no faults, of no use otherwise
    Faults faults;       ///< all that is wrong, sorted by file, line and column
};

/// Reads `<folder>/<service>/<Resource>.toml`, all of them. Whatever is wrong with folders, files
/// and definitions comes back as faults; nothing is thrown but `std::bad_alloc`.
///
/// Every other file in these folders is a fault, since it may well be a definition that is misnamed
/// and would be missed. Only what tools leave beside the files that somebody works on is passed
/// over: names that begin with a dot, that end in `~`, and that stand between two `#`.
///
/// Places and messages name the folder as `shown` says, or by its own name alone.
Loaded load(std::filesystem::path const& servicesFolder, std::string const& shown = {});

} // namespace kivgen
