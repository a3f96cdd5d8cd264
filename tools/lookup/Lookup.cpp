#include "tools/lookup/Lookup.h"

#include "text/Failure.h"
#include "text/Phrases.h"
#include "text/Printable.h"
#include "text/Suggestion.h"

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

/// A name without what leads to it or follows it: `radio::Presets` of a header's or a definition's
/// path and of a class with its namespaces, `radio/presets` of a uri.
std::string core(std::string_view name)
{
    constexpr std::string_view root = "zel::kiv::common::";
    constexpr std::string_view folder = "services/";
    if (name.starts_with(root)) {
        return std::string(name.substr(root.size()));
    }
    auto const at = name.rfind(folder);
    auto const end = name.rfind('.');
    bool const isPath = at != std::string_view::npos && end != std::string_view::npos &&
                        (at == 0 || name[at - 1] == '/');
    if (isPath) {
        std::string path(name.substr(at + folder.size(), end - at - folder.size()));
        auto const slash = path.find('/');
        return slash == std::string::npos ? path : path.replace(slash, 1, "::");
    }
    if (name.starts_with('/')) {
        auto const second = std::min(name.find('/', 1), name.size() - 1);
        return std::string(name.substr(1, name.find('/', second + 1) - 1));
    }
    return std::string(name);
}

bool isCalled(catalogue::Resource const& resource, std::string_view name)
{
    return name == nameOf(&resource) || name == resource.resourceClass ||
           name == resource.elementClass || name == resource.resourceKey || name == resource.name ||
           name == resource.element || name == resource.elementKey ||
           name == std::string(resource.service) + "::" + std::string(resource.element);
}

std::string hintFor(std::string_view name)
{
    if (catalogue::findService(name) != nullptr) {
        return ", but a service; kiv list " + std::string(name) + " shows its resources";
    }
    std::vector<std::string> const names = allResourceNames();
    std::vector<std::string_view> known = services();
    known.insert(known.end(), names.begin(), names.end());
    std::string hint = didYouMean(name, known);
    if (hint.empty()) {
        known.clear();
        for (auto const& resource : catalogue::resources()) {
            known.insert(known.end(), {resource.name, resource.element});
        }
        std::ranges::sort(known);
        known.erase(std::unique(known.begin(), known.end()), known.end());
        hint = didYouMean(name, known);
    }
    return hint + " (kiv list shows all services, kiv list SERVICE its resources)";
}

} // namespace

std::vector<catalogue::Resource const*> resourcesCalled(std::string_view name)
{
    std::string const wanted = core(name);
    std::vector<catalogue::Resource const*> found;
    for (auto const& resource : catalogue::resources()) {
        if (isCalled(resource, wanted)) {
            found.push_back(&resource);
        }
    }
    return found;
}

catalogue::Resource const& resourceNamed(std::string_view name)
{
    auto const found = resourcesCalled(name);
    if (found.size() == 1) {
        return *found.front();
    }
    if (found.empty()) {
        throw Failure("no resource " + inQuotes(name) + hintFor(name));
    }
    std::vector<std::string> names;
    names.reserve(found.size());
    for (auto const* resource : found) {
        names.push_back("'" + nameOf(resource) + "'");
    }
    throw Failure(inQuotes(name) + " may be " + listed(names, "or") + "; say which");
}

std::vector<catalogue::Resource const*> resourcesOf(std::string_view service)
{
    auto const* const found = catalogue::findService(service);
    if (found == nullptr) {
        throw Failure("no service " + inQuotes(service) + didYouMean(service, services()) +
                      " (kiv list shows all services)");
    }
    std::vector<catalogue::Resource const*> resources;
    for (auto const& resource : found->resources) {
        resources.push_back(&resource);
    }
    return resources;
}

std::vector<std::string_view> services()
{
    std::vector<std::string_view> names;
    std::ranges::transform(catalogue::services(), std::back_inserter(names),
                           &catalogue::Service::name);
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
