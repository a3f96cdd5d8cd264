#pragma once

#include "catalogue/Catalogue.h"
#include "tools/reference/Templates.h"

namespace reference {

/// The part of the page that tells all about one resource.
std::string resourcePart(zel::kiv::catalogue::Resource const& resource, Templates const& templates);

} // namespace reference
