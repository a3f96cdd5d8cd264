#pragma once

#include "generator/model/Model.h"

#include <map>
#include <string>
#include <vector>

namespace compat {

using kivgen::Field;
using kivgen::Interface;
using kivgen::Resource;
using kivgen::Service;
using kivgen::Target;

/// Something as it was and as it is. Null where it was not there, or no longer is.
template <typename Thing>
struct Pair {
    Thing const* was = nullptr;
    Thing const* is = nullptr;

    [[nodiscard]] bool isAdded() const { return was == nullptr; }
    [[nodiscard]] bool isRemoved() const { return is == nullptr; }
    [[nodiscard]] bool isKept() const { return was != nullptr && is != nullptr; }

    /// The one that is there; the new one if both are.
    [[nodiscard]] Thing const& any() const { return is != nullptr ? *is : *was; }
};

using ServicePair = Pair<Service>;
using ResourcePair = Pair<Resource>;
using FieldPair = Pair<Field>;

/// Two interfaces with what belongs together put together: by name, and what is left over by
/// likeness, since most of what seems to have gone was renamed. Both must outlive it.
class Comparison {
public:
    Comparison(Interface const& was, Interface const& is);

    [[nodiscard]] Interface const& was() const { return *m_was; }
    [[nodiscard]] Interface const& is() const { return *m_is; }

    /// All services, then all resources, in the order of the old side with what is new behind.
    [[nodiscard]] std::vector<ServicePair> const& services() const { return m_services; }
    [[nodiscard]] std::vector<ResourcePair> const& resources() const { return m_resources; }

    /// The fields of a resource that was kept, none of any other.
    [[nodiscard]] std::vector<FieldPair> fieldsOf(ResourcePair const& resource) const;

    /// Whether a target of the old side leads to what that one of the new side leads to, whatever
    /// it is called by now.
    [[nodiscard]] bool areSame(Target const& was, Target const& is) const;

    /// Whether that service of the old side is this one of the new side.
    [[nodiscard]] bool areSame(std::string const& was, std::string const& is) const;

private:
    void pairServices();
    void pairResources();
    [[nodiscard]] unsigned likeness(Resource const& was, Resource const& is) const;
    [[nodiscard]] bool areLike(Field const& was, Field const& is) const;

    Interface const* m_was;
    Interface const* m_is;
    std::vector<ServicePair> m_services;
    std::vector<ResourcePair> m_resources;
    std::map<std::string, std::string> m_serviceNow; ///< by its old name
    std::map<Resource const*, Resource const*> m_resourceNow;
};

} // namespace compat
