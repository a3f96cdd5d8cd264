#pragma once

#include <string_view>

/// What names in definitions may look like, and which the generated code cannot take.
namespace kivgen {

/// Lower-case letters and digits, a letter first: `drivingstate`.
bool hasServiceForm(std::string_view word);

/// Letters and digits, a capital first: `Presets`.
bool hasClassForm(std::string_view word);

/// Letters and digits, a letter first: `zLevel`, `SPIN`.
bool hasKeyForm(std::string_view word);

/// Whether a namespace of that name would hide a namespace or a macro that the code needs, or is a
/// word of the language.
bool isReservedService(std::string_view word);

/// Whether a class of that name would hide a class that the generated code needs, or may be a
/// macro.
bool isReservedClass(std::string_view word);

} // namespace kivgen
