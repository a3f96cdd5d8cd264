#pragma once

#include "catalogue/Catalogue.h"
#include "values/values.h"

#include <memory>

namespace zel::kiv::sample {

/// An element of `resource` in its value form: an `Object` with every field set to something
/// plausible, the same on every call. The library reads all of it without losing or bending a
/// thing.
///
/// Nested elements and references are objects with every field set themselves for `depth` levels,
/// and texts that hold their uri below that: at depth 0 all of them are texts. Lists have two
/// entries. A polymorphic field holds its first target that belongs to the interface. The size
/// grows fast with the depth; negative depths count as 0.
///
/// May throw `std::bad_alloc`.
std::unique_ptr<dataformats::data::Value> sampleOf(catalogue::Resource const& resource, int depth);

} // namespace zel::kiv::sample
