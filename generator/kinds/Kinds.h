#pragma once

#include "generator/kinds/FieldCode.h"

/// One function for each form of field; kinds of one form differ in the table of kinds alone.
/// `codeOf` calls the one that fits.
namespace kivgen::kinds {

/// Texts, numbers and flags, and lists of them.
FieldCode plainCode(Field const& field);

/// One element or a list of them, of a resource or external.
FieldCode elementCode(Field const& field, Interface const& interface);

/// An element of one of several classes.
FieldCode polymorphicCode(Field const& field, Interface const& interface);

} // namespace kivgen::kinds
