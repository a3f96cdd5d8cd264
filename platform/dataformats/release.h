#pragma once

#include "Storage.h"

namespace zel::common::types {

/// Frees a chain of storage with all values in it. `chain` may be null. The stack that it takes has
/// a limit, however deep the tree.
void release(Storage* chain) noexcept;

} // namespace zel::common::types
