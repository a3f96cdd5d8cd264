#pragma once

#include "catalogue/Catalogue.h"

#include <string>

namespace zel::dataformats::data {
class Value;
} // namespace zel::dataformats::data

namespace model {

/// Gives the value, which may be null, `times` times in a row to a resource of the library and to
/// elements of it, entry by entry or, if it is no array, as a whole, and compares all their value
/// forms with those of the model. The value must stay as it is, and the form of the resource must
/// give itself again. Says what does not hold, or nothing.
///
/// From the second time on, nested elements are replaced and thereby lost; they are not reported as
/// leaks.
std::string disagreement(zel::kiv::catalogue::Resource const& resource,
                         zel::dataformats::data::Value const* value, int times = 1);

} // namespace model
