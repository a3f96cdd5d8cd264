#pragma once

#include "tools/lookup/Names.h"

#include <string_view>

namespace kiv {

/// What a value is, as messages put it: `a number`, `text`, `null`. The value may be null.
std::string_view wordsFor(data::Value const* value);

} // namespace kiv
