#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace fuzz {

/// Ends the process, with this word to the reader of the report, if `holds` is false.
inline void require(bool holds, std::string_view what)
{
    if (!holds) {
        std::fprintf(stderr, "this does not hold: %.*s\n", static_cast<int>(what.size()),
                     what.data());
        std::abort();
    }
}

} // namespace fuzz
