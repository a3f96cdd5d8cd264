#include "tools/lookup/Lookup.h"

#include "text/Failure.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"
#include "tools/kiv/Console.h"

#include <algorithm>

namespace kiv {

namespace {

std::vector<std::string> allResourceNames()
{
    std::vector<std::string> names;
    for (auto const& resource : catalogue::resources()) {
        names.push_back(nameOf(&resource));
    }
    return names;
}

/// The resources, in quotes, that somebody may have meant who left the service out.
std::vector<std::string> namesWithKey(std::string_view key)
{
    std::vector<std::string> names;
    for (auto const& resource : catalogue::resources()) {
        if (resource.resourceKey == key) {
            names.push_back("'" + nameOf(&resource) + "'");
        }
    }
    return names;
}

std::string hintFor(std::string_view name)
{
    std::vector<std::string> const meant = namesWithKey(name);
    if (!meant.empty()) {
        return "; did you mean " + listed(meant, "or") + "?";
    }
    std::vector<std::string> const names = allResourceNames();
    std::vector<std::string_view> const known(names.begin(), names.end());
    return didYouMean(name, known);
}

} // namespace

catalogue::Resource const& resourceNamed(std::string_view name)
{
    std::size_t const slash = name.find('/');
    if (slash != std::string_view::npos) {
        auto const* const resource = catalogue::find(name.substr(0, slash), name.substr(slash + 1));
        if (resource != nullptr) {
            return *resource;
        }
    }
    throw Failure("no resource '" + std::string(name) + "'" + hintFor(name) +
                  " (kiv list shows all services, kiv list SERVICE its resources)");
}

std::vector<catalogue::Resource const*> resourcesOf(std::string_view service)
{
    std::vector<catalogue::Resource const*> found;
    for (auto const& resource : catalogue::resources()) {
        if (resource.service == service) {
            found.push_back(&resource);
        }
    }
    if (found.empty()) {
        throw Failure("no service '" + std::string(service) + "'" +
                      didYouMean(service, services()) + " (kiv list shows all services)");
    }
    return found;
}

std::vector<std::string_view> services()
{
    std::vector<std::string_view> names;
    for (auto const& resource : catalogue::resources()) {
        if (names.empty() || names.back() != resource.service) {
            names.push_back(resource.service);
        }
    }
    return names;
}

std::string nameOf(catalogue::Resource const* resource)
{
    if (resource->isExternal()) {
        return "external";
    }
    return std::string(resource->service) + "/" + std::string(resource->resourceKey);
}

std::string nameOf(FieldOf const& place)
{
    return nameOf(place.resource) + "." + std::string(place.field->key);
}

std::vector<std::string> targetNames(catalogue::Field const& field)
{
    std::vector<std::string> names;
    for (auto const* target : field.targets) {
        names.push_back(nameOf(target));
    }
    return names;
}

std::vector<FieldOf> holdersOf(catalogue::Resource const& resource)
{
    std::vector<FieldOf> holders;
    for (auto const& owner : catalogue::resources()) {
        for (auto const& field : owner.fields) {
            if (std::find(field.targets.begin(), field.targets.end(), &resource) !=
                field.targets.end()) {
                holders.push_back({&owner, &field});
            }
        }
    }
    return holders;
}

} // namespace kiv
