#pragma once

#include "catalogue/Catalogue.h"

#include <string>

namespace reference {

/// A sample element in its three value forms, as HTML text of JSON in which a uri is a link to its
/// resource.
struct Forms {
    std::string full;
    std::string shallow;
    std::string reference;
};

/// Made by the library itself. In the full form nested elements are shown with their own fields
/// where that stays readable, otherwise with what their uri tells.
Forms formsOf(zel::kiv::catalogue::Resource const& resource);

} // namespace reference
