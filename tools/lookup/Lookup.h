#pragma once

#include "tools/lookup/Names.h"

#include <string>
#include <string_view>
#include <vector>

/// Questions to the catalogue that several commands ask.
namespace kiv {

/// A field and the resource whose element has it.
struct FieldOf {
    catalogue::Resource const* resource;
    catalogue::Field const* field;
};

/// The resources that may be called so: by name as in uris, `radio/presets`, by a uri, by class or
/// element class with or without namespaces, by the path of header or definition.
std::vector<catalogue::Resource const*> resourcesCalled(std::string_view name);

/// The one resource that is called so. Throws `Failure` with the candidates if there are several,
/// with the nearest names if there is none.
catalogue::Resource const& resourceNamed(std::string_view name);

/// The resources of that service. Throws `Failure` with the nearest names if there are none.
std::vector<catalogue::Resource const*> resourcesOf(std::string_view service);

/// The services, in ascending byte order.
std::vector<std::string_view> services();

/// The name of a resource as uris spell it, `radio/presets`; what is outside the interface is
/// `external`.
std::string nameOf(catalogue::Resource const* resource);

/// The field with its resource, `radio/presets.station`.
std::string nameOf(FieldOf const& place);

/// The targets of a field, by name and in the order of its flags.
std::vector<std::string> targetNames(catalogue::Field const& field);

/// The fields that may hold an element of `resource`, in the order of the catalogue.
std::vector<FieldOf> holdersOf(catalogue::Resource const& resource);

} // namespace kiv
