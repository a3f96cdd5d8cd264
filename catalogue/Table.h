#pragma once

#include "catalogue/Catalogue.h"

#include <cstddef>

/// What the generated part of the catalogue defines. Only `Catalogue.cpp` uses it.
namespace zel::kiv::catalogue {

extern Resource const table[];
extern std::size_t const tableSize;

} // namespace zel::kiv::catalogue
