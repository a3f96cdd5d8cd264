#include "generator/model/Model.h"

#include <algorithm>
#include <tuple>

namespace kivgen {

Resource const* Interface::find(std::string const& service, std::string const& name) const
{
    auto const wanted = std::tie(service, name);
    auto const found = std::lower_bound(resources.begin(), resources.end(), wanted,
                                        [](Resource const& one, auto const& other) {
                                            return std::tie(one.service, one.name) < other;
                                        });
    bool const isThere =
        found != resources.end() && std::tie(found->service, found->name) == wanted;
    return isThere ? &*found : nullptr;
}

} // namespace kivgen
