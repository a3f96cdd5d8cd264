#pragma once

#include "tools/lookup/Names.h"

#include <memory>

/// JSON Schemas (2020-12) of value forms. They refuse what the library would lose, bend or invent,
/// as far as a schema can see it: a key that stands twice, 3.0 for 3 and the 32 bits of an integer
/// in a double field are beyond it. They let pass what the library passes over, and refuse a uri
/// without its leading slash where the uri decides what a field holds.
namespace kiv::schema {

/// The schema of a document with elements of `resource`, with definitions of all elements that may
/// stand in it.
std::unique_ptr<data::Value> ofResource(catalogue::Resource const& resource);

/// The definitions of the whole interface: of each resource the element, `radio.presets`, and the
/// document, `radio.presets.document`, for other schemas to refer to. Nothing says of what resource
/// a document is, so by itself this schema lets everything pass.
std::unique_ptr<data::Value> ofInterface();

} // namespace kiv::schema
