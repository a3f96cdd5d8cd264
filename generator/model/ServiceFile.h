#pragma once

#include "generator/model/Prose.h"
#include "generator/model/TomlReader.h"

namespace kivgen {

/// The file that tells of a service, beside the definitions of its resources.
inline constexpr std::string_view serviceFileName = "service.toml";

/// What that file says.
struct ServiceFile {
    Service service;
    Prose about;
};

/// Takes it out of the table of its file. Whatever is wrong in it alone is added to `faults`.
ServiceFile readServiceFile(Node const& document, std::string const& service,
                            SourcePosition const& file, Faults& faults);

} // namespace kivgen
