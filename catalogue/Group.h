#pragma once

#include <array>
#include <string_view>

namespace zel::kiv::catalogue {

/// The groups that services are sorted into, in the order in which they are shown.
inline constexpr std::array<std::string_view, 4> groups{
    "vehicle state",
    "audio and media",
    "navigation",
    "system",
};

} // namespace zel::kiv::catalogue
