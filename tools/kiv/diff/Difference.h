#pragma once

#include "text/Path.h"
#include "tools/lookup/Names.h"

#include <functional>

namespace kiv {

/// Takes a place where two documents differ; null stands for a value that is not there. No two of
/// the values are both arrays or both objects.
using DifferenceHandler =
    std::function<void(Path const& path, data::Value const* left, data::Value const* right)>;

/// Compares two values field by field and entry by entry. `path` is that of both, and stands there
/// unchanged afterwards unless `handler` throws. Uses stack in proportion to the depth.
void compare(Path& path, data::Value const* left, data::Value const* right,
             DifferenceHandler const& handler);

} // namespace kiv
