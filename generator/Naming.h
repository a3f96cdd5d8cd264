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

/// The presence accessor of one target of a polymorphic field:
/// `isRadioStationsStationObjectStationSet`.
std::string presenceName(std::string_view key, Resource const& target);

/// The header that the resource's classes stand in, as clients include it:
/// `services/radio/Presets.h`.
std::string headerOf(Resource const& resource);

/// The classes as code in the root namespace names them: `radio::Presets`, and
/// `radio::Presets::PresetObject`. What is external has no resource class.
std::string resourceClassOf(Resource const& resource);
std::string elementClassOf(Resource const& resource);

/// The enumerator of a kind, `StringList`; the frame's operations for the kind are named by it too.
std::string enumeratorOf(Kind kind);

/// The names of all accessors of a field, in the order of the class: getter, setter or adder,
/// presence. The setter overloads of a polymorphic field count once; a target that the interface
/// does not have counts not at all.
std::vector<std::string> accessorNames(Field const& field, Interface const& interface);

} // namespace kivgen
