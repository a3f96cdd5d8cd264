#pragma once

#include "json/ValueNames.h"

#include <string_view>

namespace kiv {

/// What a value is, as messages put it: `a number`, `text`, `null`. The value may be null.
std::string_view typeName(data::Value const* value);

} // namespace kiv
