#pragma once

#include "diagnostics/Receiver.h"
#include "json/JsonReader.h"
#include "tools/lookup/Names.h"

#include <memory>
#include <string>
#include <vector>

namespace kiv {

/// What the library makes of an entry, and where in the document it found something on the way.
struct Placed {
    json::Position position;
    diagnostics::Finding finding;
};

/// Reads one entry of a document as the resource would. What is found is appended to `findings`.
std::unique_ptr<common::IObjectBase> readEntry(catalogue::Resource const& resource,
                                               json::Entry const& entry, json::Places const& places,
                                               std::vector<Placed>& findings);

/// The same, for who has no use for findings. Throws `Failure` with the place if there is something
/// in the entry that the library must not be given.
std::unique_ptr<common::IObjectBase> readEntry(catalogue::Resource const& resource,
                                               json::Entry const& entry, json::Places const& places,
                                               std::string const& file);

} // namespace kiv
