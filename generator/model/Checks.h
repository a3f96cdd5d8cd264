#pragma once

#include "generator/model/Definition.h"

#include <string>
#include <vector>

/// What is wrong between definitions, or within one but only visible when all are known.
namespace kivgen {

/// Whether every target exists. `names` are the resources that have a file, also a faulty one, as
/// targets are spelt (`radio::Stations`), in ascending order.
void checkTargets(std::vector<Definition> const& definitions, std::vector<std::string> const& names,
                  Faults& faults);

/// Whether uris can tell the resources of a service apart.
void checkResourceKeys(std::vector<Definition> const& definitions, Faults& faults);

/// Whether no element class is named as a resource class of its service.
void checkElementNames(std::vector<Definition> const& definitions, Faults& faults);

/// Whether the accessors of each element have names of their own.
void checkAccessors(Interface const& interface, Faults& faults);

} // namespace kivgen
