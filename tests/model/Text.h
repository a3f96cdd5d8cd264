#pragma once

#include "catalogue/Catalogue.h"
#include "frame/IObjectBase.h"
#include "frame/SerializationType.h"

#include <string>

/// Values as texts close to JSON, which differ if the values differ in anything.
namespace model {

std::string textOf(bool flag);
std::string textOf(int number);
std::string textOf(double number); ///< `1.0`, unlike an integer
std::string textOf(std::string const& text);
std::string textOf(char const* text) = delete; // would become a flag

/// What that value, which may be null, holds.
std::string textOf(zel::dataformats::data::Value const* value);

/// What the library makes of an element.
std::string
textOf(zel::kiv::common::IObjectBase const& element,
       zel::kiv::common::SerializationType type = zel::kiv::common::SerializationType::Full);

/// The resource's name, for messages: `radio/presets`.
std::string nameOf(zel::kiv::catalogue::Resource const& resource);

} // namespace model
