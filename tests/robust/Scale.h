#pragma once

#include <cstddef>
#include <cstdlib>

namespace robust {

/// The size that a test is about if the environment asks for it with ROBUST_LARGE, and else a
/// twentieth, which shows the same in a moment.
inline std::size_t scaled(std::size_t size)
{
    return std::getenv("ROBUST_LARGE") == nullptr ? size / 20 : size;
}

} // namespace robust
