#pragma once

#include "generator/model/Model.h"
#include "tools/compat/Version.h"

#include <optional>
#include <string>

namespace compat {

/// One of the two interfaces that are compared.
struct Side {
    kivgen::Interface interface;
    std::optional<Version> release; ///< as what it was released, if it tells
};

/// Reads a folder of definitions, or the file that holds those of a release. Places are told by the
/// path as it is given. Throws `kiv::Failure` with all faults there are.
Side readSide(std::string const& path);

/// Reads a folder of definitions as git has it in that revision; places are told as
/// `v1.0.0:services/radio/Presets.toml`. Throws likewise.
Side readRevision(std::string const& folder, std::string const& revision);

} // namespace compat
