#pragma once

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

} // namespace kiv::diagnostics
