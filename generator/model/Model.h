#pragma once

#include "catalogue/Kind.h"

#include <cstddef>
#include <string>
#include <vector>

/// The interface as the generator knows it: what the definitions say, checked and complete.
namespace kivgen {

using zel::kiv::catalogue::Kind;

/// A place in a definition. Lines and columns count from 1; 0 means the file as a whole.
struct SourcePosition {
    std::string file; ///< as messages show it: relative to the folder that holds `services`
    std::size_t line = 0;
    std::size_t column = 0;
};

/// A class that a field may hold: the element of a resource, or a reference to the outside.
struct Target {
    std::string service;  ///< empty for an external reference
    std::string resource; ///< the resource class, empty for an external reference

    [[nodiscard]] bool isExternal() const { return service.empty(); }
};

/// One field of an element.
struct Field {
    std::string key;
    Kind kind = Kind::String;
    std::vector<Target> targets; ///< one for element kinds, several in flag order for polymorphic
    SourcePosition place;
    std::string note; ///< what there is to say of it, mostly empty
};

/// One resource and its element.
struct Resource {
    std::string service;
    std::string name;    ///< the resource class, `Presets`
    std::string element; ///< the element class, `PresetObject`
    std::string resourceKey;
    std::string elementKey;
    std::string about;         ///< what one element is
    std::vector<Field> fields; ///< all of them, `id`, `name` and `uri` too, in byte order of keys
    SourcePosition place;
};

/// One service.
struct Service {
    std::string name;
    std::string about; ///< what it is for
    std::string group; ///< one of the catalogue's `groups`
    SourcePosition place;
};

/// Everything: the resources by service, then by class name, and the services, in byte order.
struct Interface {
    std::vector<Resource> resources;
    std::vector<Service> services;

    /// The resource of that service and class name, or null.
    [[nodiscard]] Resource const* find(std::string const& service, std::string const& name) const;
};

} // namespace kivgen
