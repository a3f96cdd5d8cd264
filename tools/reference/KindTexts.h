#pragma once

#include "catalogue/Kind.h"

#include <string_view>

namespace reference {

/// What the pages say of a kind of field beside its traits.
struct KindTexts {
    std::string_view ownership; ///< who owns what goes in and comes out, in a few words
    std::string_view written;   ///< its value form
};

KindTexts textsOf(zel::kiv::catalogue::Kind kind);

} // namespace reference
