#pragma once

#include "catalogue/Catalogue.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

namespace kiv {

/// Who holds whom, and by which fields. Resources compare by their place in the catalogue, so that
/// the order is always the same.
using Ends = std::pair<zel::kiv::catalogue::Resource const*, zel::kiv::catalogue::Resource const*>;
using Links = std::map<Ends, std::vector<zel::kiv::catalogue::Field const*>>;

/// The links that begin or end at one of these resources.
Links linksOf(std::set<zel::kiv::catalogue::Resource const*> const& resources);

} // namespace kiv
