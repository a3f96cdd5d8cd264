#include "diagnostics/KeyHomes.h"

#include "diagnostics/Finding.h"

#include <algorithm>
#include <set>

namespace kiv::diagnostics {

namespace {

using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Resource;

bool holds(Resource const& holder, Resource const& resource)
{
    return std::ranges::any_of(holder.fields, [&](Field const& field) {
        return std::ranges::find(field.targets, &resource) != field.targets.end();
    });
}

} // namespace

std::string homeOf(Resource const& resource, std::string_view key)
{
    for (Field const& field : resource.fields) {
        for (Resource const* const held : field.targets) {
            if (held->find(key) != nullptr) {
                return "it is a key of " + nameOf(held) + ", held by '" + std::string(field.key) +
                       "'";
            }
        }
    }
    std::set<Resource const*> holders;
    for (Resource const& holder : zel::kiv::catalogue::resources()) {
        if (holder.find(key) != nullptr && holds(holder, resource)) {
            holders.insert(&holder);
        }
    }
    // Of many holders one would be no more than a guess.
    return holders.size() == 1 ? "it is a key of " + nameOf(*holders.begin()) + ", which holds this"
                               : std::string();
}

} // namespace kiv::diagnostics
