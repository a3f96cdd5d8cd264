#pragma once

#include "catalogue/Kind.h"

#include <string>
#include <string_view>

namespace reference {

/// What the page says of a kind of field.
struct KindWords {
    std::string_view stored;    ///< the C++ type of the member
    std::string_view ownership; ///< who owns what goes in and comes out, in a few words
    std::string_view written;   ///< its value form
};

KindWords const& wordsOf(zel::kiv::catalogue::Kind kind);

/// Where the page speaks of the kind: `kinds/string-list`.
std::string kindPlace(zel::kiv::catalogue::Kind kind);

} // namespace reference
