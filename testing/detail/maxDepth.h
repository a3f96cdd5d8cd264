#pragma once

#include <cstddef>

namespace zel::kiv::testing::detail {

/// How deep arrays and objects may be nested. The library walks into nested elements by recursion,
/// and so does whoever writes them out again; this keeps all of them far from the end of a stack of
/// 8 MiB, in debug and sanitizer builds too.
inline constexpr std::size_t maxDepth = 1000;

} // namespace zel::kiv::testing::detail
