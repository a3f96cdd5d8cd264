#pragma once

#include "tools/lookup/Names.h"

#include <string>

/// What the library reads out of a value that stands in a plain field.
namespace kiv {

/// How well a value fits a field.
enum class Fit {
    Exact,   ///< the same value arrives
    Rounded, ///< the same value arrives in another type: 5 for 5.0
    Other,   ///< another value arrives
};

Fit fitOf(catalogue::Kind kind, data::Value const& value);

/// What arrives, as JSON would show it: `0`, `"7"`, `true`.
std::string readAs(catalogue::Kind kind, data::Value const& value);

/// A uri's service and resource as the library reads them, for instance `radio/stations`; empty if
/// the value has no uri of three parts. An object's `uri` must be text.
std::string serviceAndResourceOf(data::Value const& value);

/// The text of a value that is text.
std::string const& textOf(data::Value const& value);

} // namespace kiv
