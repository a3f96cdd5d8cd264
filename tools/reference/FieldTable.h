#pragma once

#include "catalogue/Catalogue.h"
#include "tools/reference/Prose.h"
#include "tools/reference/Templates.h"

#include <string>
#include <vector>

namespace reference {

/// `id`, `name` and `uri`.
bool isCommon(zel::kiv::catalogue::Field const& field);

/// The fields of a resource that are common, or those that are not.
std::vector<zel::kiv::catalogue::Field const*>
fieldsOf(zel::kiv::catalogue::Resource const& resource, bool areCommon);

/// The table of these fields of `resource`, as HTML.
std::string fieldTable(zel::kiv::catalogue::Resource const& resource, bool areCommon,
                       Templates const& templates, Prose const& prose);

} // namespace reference
