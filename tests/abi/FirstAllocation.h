#pragma once

#include <cstddef>

/// The size of the first block of memory that is asked for while somebody watches. The unit stands
/// apart, for a compiler that sees through its operators takes them for a mistake.
namespace firstAllocation {

void watch();

/// Ends the watch; 0 if nothing was asked for.
std::size_t size();

} // namespace firstAllocation
