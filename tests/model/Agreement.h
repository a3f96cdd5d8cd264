#pragma once

#include "catalogue/Catalogue.h"

#include <string>

namespace zel::dataformats::data {
class Value;
} // namespace zel::dataformats::data

/// Compares the library with the model. Each tells the first place where they differ, in words such
/// as `full: .station.uri: expected "a", got ""`, and nothing if there is none.
namespace model {

class Collection;
class Element;

std::string disagreement(Collection const& expected, zel::kiv::common::IResourceBase const& got);

/// In all value forms, that of an unknown type too.
std::string disagreement(Element const& expected, zel::kiv::common::IObjectBase const& got);

/// Gives the value, which may be null, `times` times in a row to a resource of the library and to
/// elements of it, entry by entry or, if it is no array, as a whole, and compares these.
///
/// From the second time on, nested elements are replaced and thereby lost; they are not reported as
/// leaks.
std::string disagreement(zel::kiv::catalogue::Resource const& resource,
                         zel::dataformats::data::Value const* value, int times = 1);

} // namespace model
