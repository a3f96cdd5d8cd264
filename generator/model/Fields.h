#pragma once

#include "generator/model/Definition.h"

#include <string_view>

namespace kivgen {

/// The word that stands for a reference to the outside.
inline constexpr std::string_view externalWord = "external";

/// Takes the rows of `[fields]` over into the definition, in the order of the file.
void readFields(Entry const& fields, Definition& definition, Faults& faults);

} // namespace kivgen
