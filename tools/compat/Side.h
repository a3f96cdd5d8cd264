#pragma once

#include "generator/model/Fault.h"
#include "text/Failure.h"
#include "tools/compat/Version.h"

#include <optional>
#include <string>

namespace compat {

/// One of the two interfaces that are compared.
struct Side {
    kivgen::Interface interface;
    std::optional<Version> release; ///< as what it was released, if it tells
};

/// The definitions of a side are faulty, so there is nothing to compare.
class Faulty : public kiv::Failure {
public:
    explicit Faulty(kivgen::Faults faults);

    [[nodiscard]] kivgen::Faults const& faults() const noexcept { return m_faults; }

private:
    kivgen::Faults m_faults;
};

/// Reads a folder of definitions, or the file that holds those of a release. Places are told by the
/// path as it is given. Throws `Faulty`.
Side readSide(std::string const& path);

/// Reads a folder of definitions as git has it in that revision; places are told as
/// `v1.0.0:services/radio/Presets.toml`. Throws likewise, and `kiv::Failure` if git does not have
/// it.
Side readRevision(std::string const& folder, std::string const& revision);

} // namespace compat
