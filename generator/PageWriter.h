#pragma once

#include "generator/pages/Outputs.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace kivgen {

/// What a run did to the folder of generated files.
struct Written {
    std::size_t changed = 0;
    std::size_t removed = 0;
};

/// Brings the folder to hold these pages. A file whose text is the same is not touched, one that
/// differs is replaced in one step, and a file of an earlier run that no page stands for any more
/// is removed; files that were not generated are left alone. A second run on the same folder
/// waits until the first is done. Throws `std::runtime_error`, naming the file, if something cannot
/// be read or written; every file is then still whole, as it is when the process is killed.
Written write(std::vector<Page> const& pages, std::filesystem::path const& folder);

} // namespace kivgen
