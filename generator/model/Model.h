#pragma once

#include "catalogue/Kind.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// The interface as the generator knows it: what the definitions say, checked and complete.
namespace kivgen {

using zel::kiv::catalogue::Kind;

/// The keys that every element has, in ascending byte order.
inline constexpr std::array<char const*, 3> commonKeys{"id", "name", "uri"};

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
    std::string service; ///< empty for what stands for everything outside the interface
    std::string name;    ///< the resource class, `Presets`
    std::string element; ///< the element class, `PresetObject`
    std::string resourceKey;
    std::string elementKey;
    std::string about;         ///< what one element is
    std::vector<Field> fields; ///< all of them, `id`, `name` and `uri` too, in byte order of keys
    SourcePosition place;
    std::map<std::string, SourcePosition> rows; ///< where those of the definition stand, by key

    [[nodiscard]] bool isExternal() const { return service.empty(); }
};

/// One service.
struct Service {
    std::string name;
    std::string about; ///< what it is for
    std::string group; ///< one of the catalogue's `groups`
    SourcePosition place;
};

/// What an external target leads to: an element of no resource, with the common fields alone.
Resource externalResource();

/// Everything: the resources by service, then by class name, and the services, in byte order.
struct Interface {
    std::vector<Resource> resources;
    std::vector<Service> services;
    Resource external = externalResource();

    /// The resource that the target names, `external` too, or null.
    [[nodiscard]] Resource const* find(Target const& target) const;

    /// The same of a target that was checked. Throws `std::logic_error` if it was not.
    [[nodiscard]] Resource const& at(Target const& target) const;
};

} // namespace kivgen
