#pragma once

#include "json/ValueNames.h"

#include <span>
#include <string>
#include <string_view>

/// How findings show what stands in a value.
namespace kiv::diagnostics {

/// A number in the shortest form that reads back as the same.
std::string textOf(double number);

/// A text in quotes, escaped and cut if it is long.
std::string quoted(std::string_view text);

/// A text with its control characters escaped, so that it stays on its line.
std::string escaped(std::string_view text);

/// A value beside what should stand there: `text where a number is wanted`.
std::string wanted(data::Value const* value, std::string_view want);

/// What an unknown name was probably meant to be, `did you mean 'string'?`, or nothing.
std::string guess(std::string_view word, std::span<std::string_view const> known);

} // namespace kiv::diagnostics
