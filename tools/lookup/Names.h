#pragma once

#include "catalogue/Catalogue.h"
#include "json/ValueNames.h"

/// Short names for the rooms that the whole tool speaks of.
namespace kiv {

namespace catalogue = zel::kiv::catalogue;
namespace common = zel::kiv::common;

} // namespace kiv
