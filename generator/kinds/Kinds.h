#pragma once

#include "generator/kinds/FieldCode.h"

/// One function for each file of kinds; `codeOf` calls the one that fits.
namespace kivgen::kinds {

FieldCode stringCode(Field const& field);
FieldCode stringListCode(Field const& field);
FieldCode intCode(Field const& field);
FieldCode intListCode(Field const& field);
FieldCode doubleCode(Field const& field);
FieldCode boolCode(Field const& field);

/// External fields too: they are element fields whose target is the same everywhere.
FieldCode elementCode(Field const& field, Interface const& interface);
FieldCode elementListCode(Field const& field, Interface const& interface);
FieldCode polymorphicCode(Field const& field, Interface const& interface);

} // namespace kivgen::kinds
