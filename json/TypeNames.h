#pragma once

#include "json/ValueNames.h"

#include <string_view>

namespace kiv {

/// What a value is. The platform has a code for each type, but only some of them are known.
enum class Type { Null, Boolean, Integer, Float, Text, Blob, Array, Object };

/// The type of a value, found out by visiting it; of a null pointer it is `Null`, without a visit.
Type typeOf(data::Value const* value);

/// What a value is, as messages put it: `a number`, `text`, `null`. The value may be null.
std::string_view typeName(data::Value const* value);

} // namespace kiv
