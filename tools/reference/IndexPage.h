#pragma once

#include "tools/reference/Templates.h"

namespace reference {

/// What the page is made of beside the catalogue.
struct Sources {
    Templates templates;
    fs::path pictures; ///< a folder with a picture for each service that has a graph
    fs::path silence;  ///< HTML that tells what goes in wrong
};

/// The whole page. Throws `std::runtime_error` if a source cannot be read.
std::string indexPage(Sources const& sources);

} // namespace reference
