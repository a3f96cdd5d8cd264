#pragma once

#include "testing/Path.h"

namespace kiv {

using zel::kiv::testing::Path;

} // namespace kiv
