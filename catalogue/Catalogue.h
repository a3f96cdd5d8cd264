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
    Purpose purpose;
    /// Of the setters and presence accessors of a polymorphic field the target that each is for,
    /// otherwise null.
    Resource const* target;
};

/// One field of an element.
struct Field {
    std::string_view key;
    Kind kind;
    std::string_view note; ///< a sentence on it, or empty where there is nothing to say
    /// What the field may hold, `external()` among it: empty for plain kinds, one entry for element
    /// and external kinds, for polymorphic all in the order of the flags. None is null. The
    /// dispatch order is the same without `external()`, which is tried last.
    std::span<Resource const* const> targets;
    std::span<Accessor const> accessors; ///< in the order of the class

    /// The first accessor for that purpose. Every field has one but for `Set` and `Add`, of which a
    /// list has the latter and any other field the former: null is given for the other.
    [[nodiscard]] Accessor const* find(Purpose purpose) const;

    /// The setter or adder, whichever the field has.
    [[nodiscard]] Accessor const& writer() const;

    /// Whether a value that is of no other target becomes an external reference.
    [[nodiscard]] bool hasLastResort() const;
};

/// The namespace that the names of all classes start from.
inline constexpr std::string_view rootNamespace = "zel::kiv::common";

/// One resource and its element.
struct Resource {
    std::string_view service;       ///< `radio`
    std::string_view name;          ///< the resource class, `Presets`
    std::string_view element;       ///< the element class, `PresetObject`
    std::string_view resourceKey;   ///< `presets`
    std::string_view elementKey;    ///< `presetObject`
    std::string_view header;        ///< of both classes, `services/radio/Presets.h`
    std::string_view resourceClass; ///< in the root namespace, `radio::Presets`
    std::string_view elementClass;  ///< in the root namespace, `radio::Presets::PresetObject`
    std::string_view about;         ///< what one element is, one or two sentences
    std::span<Field const> fields;  ///< in ascending byte order of keys, `id`, `name`, `uri` too
    /// Makes an empty resource. May throw `std::bad_alloc`.
    std::unique_ptr<common::IResourceBase> (*makeResource)();
    /// Makes an empty element. May throw `std::bad_alloc`.
    std::unique_ptr<common::IObjectBase> (*makeElement)();

    /// The field of that key, or null.
    [[nodiscard]] Field const* find(std::string_view key) const;

    [[nodiscard]] bool isExternal() const { return service.empty(); }
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

/// What stands for everything outside the interface: the element `ExternalResourceObject` with its
/// three fields, in no service and of no resource. `makeResource` is null, and what there is no
/// name for is empty.
Resource const& external();

/// All resources, by service and then by class name, in ascending byte order.
std::span<Resource const> resources();

/// The resource that uris name so, `find("radio", "presets")`, or null.
Resource const* find(std::string_view service, std::string_view resourceKey);

} // namespace zel::kiv::catalogue
