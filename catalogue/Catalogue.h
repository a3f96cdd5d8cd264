#pragma once

#include "catalogue/Group.h"
#include "catalogue/Kind.h"

#include <memory>
#include <span>
#include <string_view>

namespace zel::kiv::common {
class IObjectBase;
class IResourceBase;
} // namespace zel::kiv::common

/// The definitions of the interface as data, for tools and tests. All of it is constant and lives
/// as long as the program; nothing here throws unless it says so.
namespace zel::kiv::catalogue {

struct Resource;

/// One operation of an element class that belongs to a field.
struct Accessor {
    std::string_view name;      ///< `getPosition`
    std::string_view signature; ///< as in the class: `int getPosition() const`
};

/// One field of an element.
struct Field {
    std::string_view key;
    Kind kind;
    std::string_view note; ///< a sentence on it, or empty where there is nothing to say
    /// What the field may hold, null standing for `ExternalResourceObject`: empty for plain kinds,
    /// one entry for element and external kinds, for polymorphic all in the order of the flags.
    /// The dispatch order is the same without the null.
    std::span<Resource const* const> targets;
    std::span<Accessor const> accessors; ///< in the order of the class
};

/// One resource and its element.
struct Resource {
    std::string_view service;      ///< `radio`
    std::string_view name;         ///< the resource class, `Presets`
    std::string_view element;      ///< the element class, `PresetObject`
    std::string_view resourceKey;  ///< `presets`
    std::string_view elementKey;   ///< `presetObject`
    std::string_view about;        ///< what one element is, one or two sentences
    std::span<Field const> fields; ///< in ascending byte order of keys, `id`, `name`, `uri` too
    /// Makes an empty resource. May throw `std::bad_alloc`.
    std::unique_ptr<common::IResourceBase> (*makeResource)();
    /// Makes an empty element. May throw `std::bad_alloc`.
    std::unique_ptr<common::IObjectBase> (*makeElement)();

    /// The field of that key, or null.
    [[nodiscard]] Field const* find(std::string_view key) const;
};

/// One service.
struct Service {
    std::string_view name;               ///< `radio`
    std::string_view group;              ///< one of `groups`
    std::string_view about;              ///< what it is for, one or two sentences
    std::span<Resource const> resources; ///< in the order of all resources
};

/// All services, in ascending byte order of their names.
std::span<Service const> services();

/// The service of that name, or null.
Service const* findService(std::string_view name);

/// All resources, by service and then by class name, in ascending byte order.
std::span<Resource const> resources();

/// The resource that uris name so, `find("radio", "presets")`, or null.
Resource const* find(std::string_view service, std::string_view resourceKey);

} // namespace zel::kiv::catalogue
