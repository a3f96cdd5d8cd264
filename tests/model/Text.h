#pragma once

#include "catalogue/Catalogue.h"
#include "testing/toJson.h"

#include <string>

/// Values as texts, which differ if the values differ in anything that the library can write.
namespace model {

/// What that value, which may be null, holds.
inline std::string textOf(zel::dataformats::data::Value const* value)
{
    return zel::kiv::testing::toJson(value);
}

/// What a plain value of that type holds.
template <typename Type, typename Plain>
std::string textAs(Plain const& plain)
{
    return zel::kiv::testing::toJson(Type(plain));
}

/// What the library makes of an element.
inline std::string
textOf(zel::kiv::common::IObjectBase const& element,
       zel::kiv::common::SerializationType type = zel::kiv::common::SerializationType::Full)
{
    return textOf(element.serialize(type).get());
}

/// The resource's name, for messages: `radio/presets`.
inline std::string nameOf(zel::kiv::catalogue::Resource const& resource)
{
    return std::string(resource.service) + '/' + std::string(resource.resourceKey);
}

} // namespace model
