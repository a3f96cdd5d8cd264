#pragma once

#include "tools/reference/FrameApi.h"
#include "tools/reference/Page.h"
#include "tools/reference/Prose.h"

#include <string>
#include <vector>

namespace reference {

/// What the pages are made of beside the catalogue.
struct Sources {
    Templates templates;
    fs::path pictures; ///< a folder with a picture for each service that has a graph
    fs::path texts;    ///< a folder with the documents `silence.html` and `using.html`
    std::string version;
    std::vector<Type> frame;
    Prose prose;
};

/// Each of these makes a page and throws `std::runtime_error` if a source cannot be read.
Page startPage(Sources const& sources);
Page framePage(Sources const& sources);
Page kindsPage(Sources const& sources);
Page silencePage(Sources const& sources);
Page servicePage(zel::kiv::catalogue::Service const& service, Sources const& sources);
Page resourcePage(zel::kiv::catalogue::Resource const& resource, Sources const& sources);

/// The script `names.js`: all that can be searched.
std::string namesScript(Sources const& sources);

} // namespace reference
