#include "catalogue/Catalogue.h"

#include "catalogue/Table.h"

#include <algorithm>

namespace zel::kiv::catalogue {

Accessor const* Field::find(Purpose purpose) const
{
    auto const found = std::ranges::find(accessors, purpose, &Accessor::purpose);
    return found != accessors.end() ? &*found : nullptr;
}

Accessor const& Field::writer() const
{
    return *find(isList(kind) ? Purpose::Add : Purpose::Set);
}

bool Field::hasLastResort() const
{
    return kind == Kind::Polymorphic && std::ranges::count(targets, &external()) > 0;
}

Field const* Resource::find(std::string_view key) const
{
    auto const found = std::ranges::lower_bound(fields, key, {}, &Field::key);
    return found != fields.end() && found->key == key ? &*found : nullptr;
}

Resource const& external()
{
    return table[tableSize];
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
