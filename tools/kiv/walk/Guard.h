#pragma once

#include "json/JsonReader.h"
#include "tools/kiv/walk/ElementWalk.h"

#include <string>

namespace kiv {

/// Throws `Failure` with the place if there is something in an entry that the library must not be
/// given. To be asked before every `deserialize`.
void refuseForbidden(std::string const& file, catalogue::Resource const& resource,
                     json::Entry const& entry, json::Places const& places);

} // namespace kiv
