#pragma once

#include "catalogue/Catalogue.h"
#include "values/values.h"

/// Short names for the rooms that the whole tool speaks of.
namespace kiv {

namespace catalogue = zel::kiv::catalogue;
namespace common = zel::kiv::common;
namespace data = zel::dataformats::data;
namespace types = zel::common::types;

} // namespace kiv
