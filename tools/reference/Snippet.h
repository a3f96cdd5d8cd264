#pragma once

#include "catalogue/Catalogue.h"

#include <string>

namespace reference {

/// C++ that fills an element of the resource and reads it again. It compiles as it stands.
std::string snippetOf(zel::kiv::catalogue::Resource const& resource);

} // namespace reference
