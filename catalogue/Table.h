#pragma once

#include "catalogue/Catalogue.h"

#include <cstddef>

/// What the generated part of the catalogue defines. Only `Catalogue.cpp` uses it.
namespace zel::kiv::catalogue {

/// The resources, and behind them the row of what is external.
extern Resource const table[];
extern std::size_t const tableSize; ///< without that row
extern Service const serviceTable[];
extern std::size_t const serviceTableSize;

} // namespace zel::kiv::catalogue
