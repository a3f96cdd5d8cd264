#include "generator/model/Model.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace kivgen {

Resource externalResource()
{
    Resource external;
    external.element = "ExternalResourceObject";
    external.elementKey = "externalResourceObject";
    external.about = "A reference to something outside the interface, known by its uri alone.";
    for (auto const* const key : commonKeys) {
        external.fields.push_back({key, Kind::String, {}, {}, {}});
    }
    return external;
}

Resource const* Interface::find(Target const& target) const
{
    if (target.isExternal()) {
        return &external;
    }
    auto const nameOf = [](Resource const& one) { return std::tie(one.service, one.name); };
    auto const wanted = std::tie(target.service, target.resource);
    auto const found = std::ranges::lower_bound(resources, wanted, {}, nameOf);
    return found != resources.end() && nameOf(*found) == wanted ? &*found : nullptr;
}

Resource const& Interface::at(Target const& target) const
{
    auto const* const found = find(target);
    if (found == nullptr) {
        throw std::logic_error("a target that was not checked: " + target.service +
                               "::" + target.resource);
    }
    return *found;
}

} // namespace kivgen
