#pragma once

#include "catalogue/Catalogue.h"

#include <map>
#include <set>
#include <span>
#include <string>

namespace benchwriter {

/// Texts by file name.
using Files = std::map<std::string, std::string>;

using Resource = zel::kiv::catalogue::Resource;
using Resources = std::set<Resource const*>;

/// These resources and all that their fields can hold.
Resources reachableFrom(Resources const& roots);

/// `text` with its first letter raised.
std::string raised(std::string_view text);

/// `Mirror.h`: plain structures of the same fields as the elements of these resources, and for each
/// a function that goes through its fields.
Files mirrorPage(Resources const& resources, std::span<Resource const* const> roots);

/// The whole interface as protobuf messages, one file for each service; services that hold each
/// other share one.
Files protoPages();

} // namespace benchwriter
