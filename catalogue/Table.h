#pragma once

#include "catalogue/Catalogue.h"

#include <cstddef>

/// What the generated part of the catalogue defines. Only `Catalogue.cpp` uses it.
namespace zel::kiv::catalogue {

extern Resource const table[];
extern std::size_t const tableSize;
extern Service const serviceTable[];
extern std::size_t const serviceTableSize;

} // namespace zel::kiv::catalogue
