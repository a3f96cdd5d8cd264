#pragma once

#include "generator/model/Model.h"

#include <string>
#include <string_view>
#include <vector>

/// Every spelling rule of the generated code. Nothing here throws but `std::bad_alloc`.
namespace kivgen {

/// The key with its first letter raised, as accessors carry it: `doorState` gives `DoorState`.
std::string stemOf(std::string_view key);

/// The class name with its first letter lowered, as keys of classes are: `Presets` gives `presets`.
std::string lowered(std::string_view name);

/// Whether the word is reserved in C++20, the alternative operator spellings among them.
bool isCppKeyword(std::string_view word);

std::string getterName(std::string_view key);
std::string setterName(std::string_view key);
std::string adderName(std::string_view key);

/// The presence accessor of every kind but polymorphic: `isDoorStateSet`.
std::string presenceName(std::string_view key);

/// The presence accessor of one target of a polymorphic field, `element` being the target's element
/// class: `isRadioStationsStationObjectStationSet`. An external target needs no `element`.
std::string presenceName(std::string_view key, Target const& target, std::string_view element);

/// The names of all accessors of a field, in the order of the class: getter, setter or adder,
/// presence. The setter overloads of a polymorphic field count once; a target that the interface
/// does not have counts not at all.
std::vector<std::string> accessorNames(Field const& field, Interface const& interface);

} // namespace kivgen
