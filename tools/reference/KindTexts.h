#pragma once

#include "catalogue/Kind.h"

#include <string>
#include <string_view>

namespace reference {

/// What the page says of a kind of field.
struct KindTexts {
    std::string_view ownership; ///< who owns what goes in and comes out, in a few words
    std::string_view written;   ///< its value form
};

KindTexts textsOf(zel::kiv::catalogue::Kind kind);

/// The anchor under which the page speaks of the kind: `kinds/string-list`.
std::string anchorOf(zel::kiv::catalogue::Kind kind);

} // namespace reference
