#include "tools/reference/IndexPage.h"

#include "text/Phrases.h"
#include "tools/kiv/Console.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Graph.h"
#include "tools/reference/KindTexts.h"
#include "tools/reference/ResourcePage.h"

#include <algorithm>

namespace reference {

namespace {

using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;
using ResourceList = std::vector<Resource const*>;

/// Kinds of more fields than that have too many to list.
constexpr std::size_t mostListed = 60;

std::size_t countFields(ResourceList const& resources)
{
    std::size_t count = 0;
    for (Resource const* const resource : resources) {
        count += resource->fields.size();
    }
    return count;
}

List linksTo(ResourceList const& resources)
{
    List links;
    for (Resource const* const resource : resources) {
        Data data;
        data.set("name", kiv::nameOf(resource));
        data.set("key", std::string(resource->resourceKey));
        links.push_back(std::move(data));
    }
    return links;
}

Data serviceData(std::string_view service)
{
    ResourceList const resources = kiv::resourcesOf(service);
    Data data;
    data.set("service", std::string(service));
    data.set("resourceCount", kiv::counted(resources.size(), "resource"));
    data.set("fieldCount", kiv::counted(countFields(resources), "field"));
    data.set("links", linksTo(resources));
    return data;
}

std::string servicePart(std::string_view service, Sources const& sources)
{
    std::string parts;
    for (Resource const* const resource : kiv::resourcesOf(service)) {
        parts += resourcePart(*resource, sources.templates);
    }
    Data data = serviceData(service);
    bool const hasGraph = !graphOf(service).empty();
    data.set("hasGraph", hasGraph);
    if (hasGraph) {
        data.set("graph",
                 inlined(contentOf(sources.pictures / (std::string(service) + ".dot.svg"))));
    }
    data.set("resources", parts);
    return sources.templates.fill("service", data);
}

Data kindData(Kind kind)
{
    List fields;
    std::size_t count = 0;
    for (Resource const& resource : kiv::catalogue::resources()) {
        for (Field const& field : resource.fields) {
            if (field.kind == kind) {
                Data data;
                data.set("name", kiv::nameOf(&resource));
                data.set("key", std::string(field.key));
                fields.push_back(std::move(data));
                ++count;
            }
        }
    }
    auto const words = textsOf(kind);
    Data data;
    data.set("kind", std::string(wordOf(kind)));
    data.set("place", anchorOf(kind));
    data.set("stored", breakable(traitsOf(kind).stored));
    data.set("ownership", std::string(words.ownership));
    data.set("written", std::string(words.written));
    data.set("count", kiv::counted(count, "field"));
    data.set("isListed", count <= mostListed);
    data.set("fields", fields);
    return data;
}

} // namespace

std::string indexPage(Sources const& sources)
{
    List services;
    std::string parts;
    ResourceList all;
    for (auto const service : kiv::services()) {
        services.push_back(serviceData(service));
        parts += servicePart(service, sources);
    }
    for (Resource const& resource : kiv::catalogue::resources()) {
        all.push_back(&resource);
    }
    List kinds;
    for (std::size_t place = 0; place < zel::kiv::catalogue::kindWords.size(); ++place) {
        kinds.push_back(kindData(static_cast<Kind>(place)));
    }
    Data data;
    data.set("serviceCount", kiv::counted(kiv::services().size(), "service"));
    data.set("resourceCount", kiv::counted(all.size(), "resource"));
    data.set("fieldCount", kiv::counted(countFields(all), "field"));
    data.set("services", services);
    data.set("kinds", kinds);
    data.set("silence", contentOf(sources.silence));
    data.set("parts", parts);
    return sources.templates.fill("index", data);
}

} // namespace reference
