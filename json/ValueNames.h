#pragma once

#include "values/values.h"

/// Short names for the value classes' namespaces.
namespace kiv {

namespace data = zel::dataformats::data;
namespace types = zel::common::types;

} // namespace kiv
