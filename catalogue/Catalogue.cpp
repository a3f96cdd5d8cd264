#include "catalogue/Catalogue.h"

#include "catalogue/Table.h"

#include <algorithm>

namespace zel::kiv::catalogue {

Field const* Resource::find(std::string_view key) const
{
    auto const found = std::ranges::lower_bound(fields, key, {}, &Field::key);
    return found != fields.end() && found->key == key ? &*found : nullptr;
}

std::span<Resource const> resources()
{
    return {table, tableSize};
}

std::span<Service const> services()
{
    return {serviceTable, serviceTableSize};
}

Service const* findService(std::string_view name)
{
    auto const all = services();
    auto const found = std::ranges::find(all, name, &Service::name);
    return found != all.end() ? &*found : nullptr;
}

Resource const* find(std::string_view service, std::string_view resourceKey)
{
    auto const all = resources();
    auto const found = std::ranges::find_if(all, [&](Resource const& each) {
        return each.service == service && each.resourceKey == resourceKey;
    });
    return found != all.end() ? &*found : nullptr;
}

} // namespace zel::kiv::catalogue
