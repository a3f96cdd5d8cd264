#pragma once

#include "catalogue/Catalogue.h"

namespace kiv::diagnostics {

/// The row of the catalogue for the class of an element or resource; null for
/// `ExternalResourceObject`. The first call makes one object of each class to learn their types.
zel::kiv::catalogue::Resource const* resourceOf(zel::kiv::common::IObjectBase const& element);
zel::kiv::catalogue::Resource const* resourceOf(zel::kiv::common::IResourceBase const& resource);

} // namespace kiv::diagnostics
