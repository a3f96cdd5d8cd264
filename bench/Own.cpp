#include "bench/Cases.h"

#include "frame/IResourceBase.h"

namespace bench {

void addOwn(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    std::string const name(workload.name);
    std::size_t const elements = document->get().size();
    auto const make = resourceOf(workload).makeResource;
    cases.push_back({name, "deserialize", "kiv", elements, [make, document] {
                         auto resource = make();
                         resource->deserialize(document.get());
                         return Result(std::move(resource));
                     }});
    std::shared_ptr<zel::kiv::common::IResourceBase> const filled = make();
    filled->deserialize(document.get());
    cases.push_back(
        {name, "serialize", "kiv", elements, [filled] { return Result(filled->serialize()); }});
}

} // namespace bench
