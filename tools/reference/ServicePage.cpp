#include "text/Phrases.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Graph.h"
#include "tools/reference/Html.h"
#include "tools/reference/Pages.h"

#include <numeric>

namespace reference {

namespace {

using kiv::catalogue::Resource;
using kiv::catalogue::Service;

std::size_t fieldsIn(std::span<Resource const> resources)
{
    return std::accumulate(
        resources.begin(), resources.end(), std::size_t{0},
        [](std::size_t sum, Resource const& each) { return sum + each.fields.size(); });
}

Data serviceData(Service const& service, Prose const& prose)
{
    List resources;
    for (Resource const& resource : service.resources) {
        Data data;
        data.set("name", kiv::nameOf(&resource));
        data.set("address", addressOf(resource));
        data.set("key", breakable(resource.resourceKey));
        data.set("about", prose.htmlOf(firstSentence(resource.about), service.name, &resource));
        resources.push_back(std::move(data));
    }
    Data data;
    data.set("service", std::string(service.name));
    data.set("address", addressOf(service.name));
    data.set("group", std::string(service.group));
    data.set("about", prose.htmlOf(service.about, service.name, nullptr));
    data.set("resourceCount", kiv::counted(service.resources.size(), "resource"));
    data.set("fieldCount", kiv::counted(fieldsIn(service.resources), "field"));
    data.set("resources", resources);
    return data;
}

} // namespace

Page servicePage(Service const& service, Sources const& sources)
{
    Data data = serviceData(service, sources.prose);
    bool const hasGraph = !graphOf(service.name).empty();
    data.set("hasGraph", hasGraph);
    if (hasGraph) {
        auto const picture = sources.pictures / (std::string(service.name) + ".dot.svg");
        data.set("graph", inlined(contentOf(picture)));
    }
    return {.sort = "service",
            .address = addressOf(service.name),
            .title = std::string(service.name),
            .summary = std::string(service.about),
            .content = sources.templates.fill("service", data),
            .service = service.name};
}

Page startPage(Sources const& sources)
{
    List groups;
    for (auto const group : kiv::catalogue::groups) {
        List services;
        for (Service const& service : kiv::catalogue::services()) {
            if (service.group == group) {
                services.push_back(serviceData(service, sources.prose));
            }
        }
        Data data;
        data.set("group", std::string(group));
        data.set("services", services);
        groups.push_back(std::move(data));
    }
    auto const resources = kiv::catalogue::resources();
    Data data;
    data.set("serviceCount", kiv::counted(kiv::catalogue::services().size(), "service"));
    data.set("resourceCount", kiv::counted(resources.size(), "resource"));
    data.set("fieldCount", kiv::counted(fieldsIn(resources), "field"));
    data.set("groups", groups);
    return {.sort = "start",
            .address = "index.html",
            .title = "",
            .summary = "The infotainment service interface, to browse and to search",
            .content = sources.templates.fill("start", data)};
}

} // namespace reference
