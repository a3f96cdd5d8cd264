#pragma once

#include "json/JsonReader.h"
#include "tools/kiv/check/Checker.h"

#include <string>

namespace kiv {

/// A finding about the text of a document alone, which the library never comes across.
Placed textFinding(diagnostics::Fate fate, diagnostics::Id id, json::Position position,
                   std::string const& path, std::string stands, std::string becomes,
                   std::string meant);

/// What there is to say of a number that no value holds as it stands.
Placed misfitFinding(json::Misfit misfit, json::Position position, std::string const& path,
                     std::string const& number);

} // namespace kiv
