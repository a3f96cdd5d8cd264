#pragma once

#include "catalogue/Catalogue.h"

#include <string>
#include <string_view>

namespace kiv::diagnostics {

/// Where a key belongs that stands in an element of `resource`, which has no such key: in an
/// element that this one holds, or in the one that holds it. Empty if it is in neither.
std::string homeOf(zel::kiv::catalogue::Resource const& resource, std::string_view key);

} // namespace kiv::diagnostics
