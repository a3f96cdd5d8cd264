#pragma once

#include "generator/kinds/FieldCode.h"

#include <string>

namespace kivgen {

/// An accessor on one line, as the catalogue shows it: `int getPosition() const`.
std::string signatureOf(Accessor const& accessor);

/// An accessor as a class declares it, with its comment.
std::string declarationOf(Accessor const& accessor);

/// An accessor as a source unit defines it, `scope` being the class: `Presets::PresetObject`.
std::string definitionOf(Accessor const& accessor, std::string const& scope);

/// A constructor without parameters and the key it gives to its base.
std::string constructorOf(std::string const& name, std::string const& base, std::string const& key);

/// The constructor of the visitor of a class, in the visitor; it takes the object to fill, which
/// `target` says what it is: `Element` or `Resource`.
std::string visitorConstructorOf(std::string const& className, std::string const& target);

/// The first line of an exported class.
std::string classHeadOf(std::string const& name, std::string const& base);

/// A member of a class and its initial value, on one line or, if that is too long, on two.
std::string memberLine(std::string const& member);

/// A result and what follows it, on one line or, if that is too long, on two.
std::string withResult(std::size_t indent, std::string const& result, std::string const& rest);

} // namespace kivgen
