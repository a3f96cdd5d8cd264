#pragma once

#include "values/values.h"

#include <memory>
#include <string>

/// The examples read and show values as JSON, through the `kiv` tool's reader and writer.
namespace examples {

/// The document in that file as values. Throws `std::exception`, saying where, if it is no JSON.
std::unique_ptr<zel::dataformats::data::Value> readJson(std::string const& path);

/// Prints values as JSON, on one line.
void printJson(zel::dataformats::data::Value const& value);

} // namespace examples
