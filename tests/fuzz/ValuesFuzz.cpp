#include "tests/fuzz/Require.h"
#include "tests/fuzz/Tree.h"
#include "tests/model/Agreement.h"
#include "tests/model/Tree.h"

#include "frame/IResourceBase.h"

#include <cstdint>
#include <memory>

/// Bytes as a tree of values into one of the resources, and all its forms out.
namespace {

using fuzz::require;
using zel::dataformats::data::Value;
using zel::kiv::catalogue::Resource;

std::unique_ptr<Value> throughResource(Resource const& resource, Value const* value)
{
    auto const object = resource.makeResource();
    require(object->deserialize(value), "deserialize is true");
    return object->serialize();
}

void requireSame(model::Tree const& expected, Value const* got, char const* what)
{
    auto const difference = model::difference(expected, model::treeOf(got));
    require(difference.empty(), what + (": " + difference));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::Bytes bytes({data, size});
    auto const all = zel::kiv::catalogue::resources();
    Resource const& resource = all[bytes.below(all.size())];
    auto const tree = fuzz::treeFor(resource, bytes);
    auto const before = model::treeOf(tree.get());

    auto const disagreement = model::disagreement(resource, tree.get());
    require(disagreement.empty(), disagreement);
    requireSame(before, tree.get(), "the input stays as it was");
    auto const full = throughResource(resource, tree.get());
    requireSame(model::treeOf(full.get()), throughResource(resource, full.get()).get(),
                "the full form gives itself again");
    return 0;
}
