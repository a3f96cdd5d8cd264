#pragma once

#include "generator/model/Definition.h"
#include "generator/model/ServiceFile.h"

#include <string>
#include <vector>

namespace kivgen {

/// Whether what the texts name in backticks exists. In `services/radio/Presets.toml` a name is
///
/// - a key of the element, or of a resource that the same text names: `position`;
/// - a resource or element class of the service: `Stations`, `StationObject`;
/// - a resource of any service: `radio::Stations`, `radio/stations`, or its element class with it,
///   `radio::Stations::StationObject`;
/// - a service, or a class of the frame: `radio`, `ExternalResourceObject`.
///
/// `files` are the resources that have a file, also a faulty one, as `radio::Stations`.
void checkProseNames(std::vector<Definition> const& definitions,
                     std::vector<ServiceFile> const& services,
                     std::vector<std::string> const& files, Faults& faults);

} // namespace kivgen
