#pragma once

#include "catalogue/Catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace reference {

/// A value form of an element or a resource, as HTML text of JSON in which a uri is a link to its
/// resource.
struct Sample {
    std::string_view form;  ///< for the style and whoever looks for it: `array`, `full`
    std::string_view title; ///< `A resource`
    std::string_view use;   ///< what it may be used for
    std::string json;
};

/// Made by the library itself. In the full form nested elements are shown with their own fields
/// where that stays readable, otherwise with what their uri tells.
std::vector<Sample> samplesOf(zel::kiv::catalogue::Resource const& resource);

} // namespace reference
