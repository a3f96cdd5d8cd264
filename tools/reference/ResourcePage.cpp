#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/FieldTable.h"
#include "tools/reference/Html.h"
#include "tools/reference/Pages.h"
#include "tools/reference/Samples.h"
#include "tools/reference/Snippet.h"

namespace reference {

namespace {

using kiv::catalogue::Field;
using kiv::catalogue::Resource;

/// Tables of more rows than that get an index of their keys.
constexpr std::size_t mostWithoutIndex = 14;

List holdersData(Resource const& resource)
{
    List holders;
    for (auto const& holder : kiv::holdersOf(resource)) {
        Data data;
        data.set("address", addressOf(*holder.resource, *holder.field));
        data.set("name", breakable(kiv::nameOf(holder)));
        holders.push_back(std::move(data));
    }
    return holders;
}

List keysData(Resource const& resource)
{
    List keys;
    for (Field const* const field : fieldsOf(resource, false)) {
        Data data;
        data.set("key", std::string(field->key));
        data.set("shownKey", breakable(field->key));
        keys.push_back(std::move(data));
    }
    return keys;
}

List samplesData(Resource const& resource)
{
    List list;
    for (Sample const& sample : samplesOf(resource)) {
        Data data;
        data.set("form", std::string(sample.form));
        data.set("title", std::string(sample.title));
        data.set("use", std::string(sample.use));
        data.set("json", sample.json);
        list.push_back(std::move(data));
    }
    return list;
}

} // namespace

Page resourcePage(Resource const& resource, Sources const& sources)
{
    List const keys = keysData(resource);
    List const holders = holdersData(resource);
    auto const text = [](std::string_view words) { return Data(std::string(words)); };
    Data data;
    data.set("name", kiv::nameOf(&resource));
    data.set("shownName", breakable(kiv::nameOf(&resource)));
    data.set("service", text(resource.service));
    data.set("class", breakable(resource.name));
    data.set("resourceClass", breakable(resource.resourceClass));
    data.set("elementClass", breakable(resource.elementClass));
    data.set("resourceKey", text(resource.resourceKey));
    data.set("elementKey", text(resource.elementKey));
    data.set("about", sources.prose.htmlOf(resource.about, resource.service, &resource));
    data.set("header", text(resource.header));
    data.set("hasIndex", keys.size() > mostWithoutIndex);
    data.set("keys", keys);
    data.set("fields", fieldTable(resource, false, sources.templates, sources.prose));
    data.set("commonFields", fieldTable(resource, true, sources.templates, sources.prose));
    data.set("isHeld", !holders.empty());
    data.set("holders", holders);
    data.set("samples", samplesData(resource));
    data.set("snippet", escaped(snippetOf(resource)));
    return {.sort = "resource",
            .address = addressOf(resource),
            .title = kiv::nameOf(&resource),
            .summary = std::string(resource.about),
            .content = sources.templates.fill("resource", data),
            .service = resource.service,
            .resource = &resource};
}

} // namespace reference
