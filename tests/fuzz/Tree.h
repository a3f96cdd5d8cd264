#pragma once

#include "tests/fuzz/Bytes.h"

#include "catalogue/Catalogue.h"
#include "values/values.h"

#include <memory>

namespace fuzz {

/// A tree of values of any shape that resembles what `resource` reads: mostly its keys and fitting
/// types, and everything else as well. The one thing that it keeps to is what callers must: an
/// object under the key of any polymorphic field has text as its `uri`, or none. Null if the bytes
/// say so.
std::unique_ptr<zel::dataformats::data::Value>
treeFor(zel::kiv::catalogue::Resource const& resource, Bytes& bytes);

} // namespace fuzz
