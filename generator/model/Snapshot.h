#pragma once

#include "generator/model/Loader.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The definitions of a release, all in one file.
namespace kivgen {

/// What came out of reading such a file.
struct Snapshot {
    Loaded loaded;
    std::string release; ///< the version, as the file tells it
};

/// Reads what `snapshotOf` wrote, as strictly as a folder of definitions.
Snapshot loadSnapshot(std::filesystem::path const& file);

/// The text of the file: a table for each service and each definition, named as these are.
std::string snapshotOf(Interface const& interface, std::string_view release);

} // namespace kivgen
