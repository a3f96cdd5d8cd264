#include "tests/fuzz/Require.h"
#include "tests/model/Agreement.h"
#include "tests/model/RandomTree.h"
#include "tests/model/Tree.h"

#include "frame/IResourceBase.h"
#include "values/values.h"

#include <cstdint>
#include <memory>
#include <span>

/// Bytes as a tree of values into one of the resources, and all its forms out.
namespace {

using fuzz::require;
using zel::dataformats::data::Value;
using zel::kiv::catalogue::Resource;

/// Draws decisions from the bytes, as many of them as a decision takes. When they run out every
/// decision is the last one, by which trees come to an end.
model::RandomTree::Source decisionsOf(std::span<std::uint8_t const> bytes)
{
    return [bytes](std::uint64_t most) mutable {
        std::uint64_t number = 0;
        for (std::uint64_t rest = most; rest > 0; rest >>= 8U) {
            if (bytes.empty()) {
                return most;
            }
            number = number << 8U | bytes.front();
            bytes = bytes.subspan(1);
        }
        return number > most ? number % (most + 1) : number;
    };
}

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
    auto decide = decisionsOf({data, size});
    auto const all = zel::kiv::catalogue::resources();
    Resource const& resource = all[decide(all.size() - 1)];
    auto const tree = model::RandomTree(decide).forResource(resource);
    auto const before = model::treeOf(tree.get());

    auto const disagreement = model::disagreement(resource, tree.get());
    require(disagreement.empty(), disagreement);
    requireSame(before, tree.get(), "the input stays as it was");
    auto const full = throughResource(resource, tree.get());
    requireSame(model::treeOf(full.get()), throughResource(resource, full.get()).get(),
                "the full form gives itself again");
    return 0;
}
