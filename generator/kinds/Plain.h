#pragma once

#include "generator/kinds/FieldCode.h"

#include <string_view>

/// The form that text, number and flag fields share.
namespace kivgen::kinds {

/// What differs between them.
struct Plain {
    std::string_view type;      ///< as stored: `std::string`
    std::string_view result;    ///< as the getter gives it: `std::string const&`
    std::string_view parameter; ///< as the setter takes it
    std::string_view initial;   ///< behind the member's name: ` = 0`
    std::string_view unset;     ///< what the getter gives while the field is not set: `zero`
    std::string_view word;      ///< in the names of the frame's operations: `Int`
};

FieldCode plainCode(Field const& field, Plain const& plain);
FieldCode plainListCode(Field const& field, Plain const& plain);

} // namespace kivgen::kinds
