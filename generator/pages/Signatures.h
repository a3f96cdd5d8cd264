#pragma once

#include "generator/Printer.h"
#include "generator/kinds/FieldCode.h"

#include <string>

namespace kivgen {

/// An accessor on one line, as the catalogue shows it: `int getPosition() const`.
std::string signatureOf(Accessor const& accessor);

/// An accessor as a class declares it.
Block declarationOf(Accessor const& accessor);

/// An accessor as a source unit defines it, `scope` being the class: `PresetObject`.
Block definitionOf(Accessor const& accessor, std::string const& scope);

/// A constructor without parameters and the key it gives to its base.
Block constructorOf(std::string const& name, std::string const& base, std::string const& key);

/// The first line of an exported class.
Block classHeadOf(std::string const& name, std::string const& base);

/// A member of a class and its initial value, on one line or, if that is too long, on two.
Block memberLine(std::string const& member);

/// A result and what follows it, on one line or, if that is too long, on two.
Block withResult(std::string const& result, std::string const& rest);

} // namespace kivgen
