#include "tools/lookup/Links.h"

namespace kiv {

Links linksOf(std::set<zel::kiv::catalogue::Resource const*> const& resources)
{
    Links links;
    for (auto const& holder : zel::kiv::catalogue::resources()) {
        for (auto const& field : holder.fields) {
            for (auto const* held : field.targets) {
                bool const isAsked = resources.contains(&holder) || resources.contains(held);
                if (!held->isExternal() && isAsked) {
                    links[{&holder, held}].push_back(&field);
                }
            }
        }
    }
    return links;
}

} // namespace kiv
