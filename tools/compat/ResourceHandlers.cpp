#include "tools/compat/Handlers.h"

#include <algorithm>

namespace compat {
namespace {

/// Found, with nothing to be said beside the rule's own words.
constexpr auto asSaid = "";

Found foundIf(bool isFound, std::string what = asSaid)
{
    return isFound ? Found(std::move(what)) : std::nullopt;
}

std::string nowCalled(std::string const& was, std::string const& is)
{
    return "`" + was + "` is now `" + is + "`";
}

/// What comes or goes with its service is told of by that.
bool hasService(std::vector<ServicePair> const& services, Resource const& resource,
                Service const* ServicePair::*side)
{
    return std::ranges::any_of(services, [&](ServicePair const& each) {
        return each.isKept() && (each.*side)->name == resource.service;
    });
}

std::string resourcesOf(Interface const& interface, std::string const& service)
{
    auto const count = std::ranges::count(interface.resources, service, &Resource::service);
    return "with " + std::to_string(count) + (count == 1 ? " resource" : " resources");
}

} // namespace

Found serviceAdded(Comparison const& comparison, ServicePair const& pair)
{
    return pair.isAdded() ? Found(resourcesOf(comparison.is(), pair.is->name)) : std::nullopt;
}

Found serviceRemoved(Comparison const& comparison, ServicePair const& pair)
{
    return pair.isRemoved() ? Found(resourcesOf(comparison.was(), pair.was->name)) : std::nullopt;
}

Found serviceRenamed(Comparison const& /*comparison*/, ServicePair const& pair)
{
    return pair.isKept()
               ? foundIf(pair.was->name != pair.is->name, nowCalled(pair.was->name, pair.is->name))
               : std::nullopt;
}

Found serviceReworded(Comparison const& /*comparison*/, ServicePair const& pair)
{
    return foundIf(pair.isKept() &&
                   (pair.was->about != pair.is->about || pair.was->group != pair.is->group));
}

Found resourceAdded(Comparison const& comparison, ResourcePair const& pair)
{
    return foundIf(pair.isAdded() && hasService(comparison.services(), *pair.is, &ServicePair::is));
}

Found resourceRemoved(Comparison const& comparison, ResourcePair const& pair)
{
    return foundIf(pair.isRemoved() &&
                   hasService(comparison.services(), *pair.was, &ServicePair::was));
}

Found resourceMoved(Comparison const& comparison, ResourcePair const& pair)
{
    if (!pair.isKept() || comparison.areSame(pair.was->service, pair.is->service)) {
        return std::nullopt;
    }
    return nowCalled(pair.was->service + "::" + pair.was->name,
                     pair.is->service + "::" + pair.is->name);
}

Found resourceRenamed(Comparison const& comparison, ResourcePair const& pair)
{
    if (!pair.isKept() || !comparison.areSame(pair.was->service, pair.is->service)) {
        return std::nullopt;
    }
    return foundIf(pair.was->name != pair.is->name, nowCalled(pair.was->name, pair.is->name));
}

Found elementRenamed(Comparison const& /*comparison*/, ResourcePair const& pair)
{
    return pair.isKept() ? foundIf(pair.was->element != pair.is->element,
                                   nowCalled(pair.was->element, pair.is->element))
                         : std::nullopt;
}

Found resourceKeyChanged(Comparison const& /*comparison*/, ResourcePair const& pair)
{
    return pair.isKept() ? foundIf(pair.was->resourceKey != pair.is->resourceKey,
                                   nowCalled(pair.was->resourceKey, pair.is->resourceKey))
                         : std::nullopt;
}

Found elementKeyChanged(Comparison const& /*comparison*/, ResourcePair const& pair)
{
    return pair.isKept() ? foundIf(pair.was->elementKey != pair.is->elementKey,
                                   nowCalled(pair.was->elementKey, pair.is->elementKey))
                         : std::nullopt;
}

Found resourceReworded(Comparison const& /*comparison*/, ResourcePair const& pair)
{
    return foundIf(pair.isKept() && pair.was->about != pair.is->about);
}

} // namespace compat
