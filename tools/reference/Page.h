#pragma once

#include "catalogue/Catalogue.h"
#include "tools/reference/Templates.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace reference {

/// The pages that are of no service, with their names.
inline constexpr std::array<std::pair<std::string_view, std::string_view>, 4> guides{{
    {"index.html", "Start"},
    {"frame.html", "The frame"},
    {"kinds.html", "Kinds of field"},
    {"silence.html", "What goes in wrong"},
}};

/// One page and what stands round its content.
struct Page {
    std::string_view sort; ///< `start`, `guide`, `service` or `resource`, for the script
    std::string address;
    std::string title;   ///< as its path says it: `radio/presets`; empty at the start
    std::string summary; ///< a sentence, as plain text
    std::string content; ///< HTML
    std::string_view service = {};
    zel::kiv::catalogue::Resource const* resource = nullptr;
};

/// The whole page with bar and list of services.
std::string wholePage(Page const& page, Templates const& templates);

} // namespace reference
