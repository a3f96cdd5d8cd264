#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kiv {

/// "1 field", "1,669 fields".
std::string counted(std::size_t number, std::string_view noun);

/// "a, b and c", with `last` before the last one.
std::string listed(std::vector<std::string> const& words, std::string_view last);

} // namespace kiv
