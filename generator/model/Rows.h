#pragma once

#include "generator/model/TomlReader.h"

#include <span>
#include <string>
#include <string_view>

/// What the tables of definitions have in common.
namespace kivgen {

/// The row of that key, or null.
Entry const* find(Node const& table, std::string_view key);

/// The text of a row. Anything but a text is added to `faults`, and gives null.
std::string const* textOf(Entry const& row, Faults& faults);

/// Whether the row holds a table. Anything else is added to `faults`.
bool isTable(Entry const& row, Faults& faults);

/// Whether the table has rows of known keys alone. `otherwise` ends the message on a key that no
/// known one comes near to.
void checkKeys(Node const& table, std::span<std::string_view const> known,
               std::string_view otherwise, Faults& faults);

/// Whether the rows stand in ascending byte order of their keys.
void checkOrder(Node const& table, Faults& faults);

} // namespace kivgen
