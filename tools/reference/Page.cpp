#include "tools/reference/Page.h"

#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Html.h"

namespace reference {

namespace {

using kiv::catalogue::Resource;

List guidesData(Page const& page)
{
    List list;
    for (auto const& [address, name] : guides) {
        Data data;
        data.set("address", std::string(address));
        data.set("name", std::string(name));
        data.set("isCurrent", page.address == address);
        list.push_back(std::move(data));
    }
    return list;
}

List resourcesData(Page const& page)
{
    List list;
    for (Resource const* const resource : kiv::resourcesOf(page.service)) {
        Data data;
        data.set("address", addressOf(*resource));
        data.set("key", breakable(resource->resourceKey));
        data.set("isCurrent", resource == page.resource);
        list.push_back(std::move(data));
    }
    return list;
}

Data serviceData(Page const& page, std::string_view service)
{
    bool const isOpen = service == page.service;
    Data data;
    data.set("address", addressOf(service));
    data.set("service", std::string(service));
    data.set("isCurrent", isOpen && page.resource == nullptr);
    data.set("isOpen", isOpen);
    if (isOpen) {
        data.set("resources", resourcesData(page));
    }
    return data;
}

List groupsData(Page const& page)
{
    List groups;
    for (auto const group : kiv::catalogue::groups) {
        List services;
        for (auto const& service : kiv::catalogue::services()) {
            if (service.group == group) {
                services.push_back(serviceData(page, service.name));
            }
        }
        Data data;
        data.set("group", std::string(group));
        data.set("services", services);
        groups.push_back(std::move(data));
    }
    return groups;
}

/// The way from the start to the page; the last step is no link.
List stepsTo(Page const& page)
{
    List steps;
    if (page.resource != nullptr) {
        Data service;
        service.set("address", addressOf(page.service));
        service.set("name", std::string(page.service));
        steps.push_back(std::move(service));
    }
    if (!page.title.empty()) {
        Data last;
        last.set("address", false);
        last.set("name", page.resource != nullptr ? breakable(page.resource->resourceKey)
                                                  : escaped(page.title));
        steps.push_back(std::move(last));
    }
    return steps;
}

} // namespace

std::string wholePage(Page const& page, Templates const& templates)
{
    std::string const site = "Interface reference";
    Data data;
    data.set("page", std::string(page.sort));
    data.set("path", page.title);
    data.set("title", page.title.empty() ? site : page.title + " – " + site);
    data.set("summary", page.summary);
    data.set("steps", stepsTo(page));
    data.set("guides", guidesData(page));
    data.set("groups", groupsData(page));
    data.set("content", page.content);
    return templates.fill("page", data);
}

} // namespace reference
