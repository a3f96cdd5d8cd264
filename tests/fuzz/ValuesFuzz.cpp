#include "tests/fuzz/Require.h"
#include "tests/model/Agreement.h"
#include "tests/model/RandomTree.h"

#include "values/values.h"

#include <cstdint>
#include <span>

/// Bytes as a tree of values into one of the resources: what the random test holds of chance.
namespace {

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    auto decide = decisionsOf({data, size});
    auto const all = zel::kiv::catalogue::resources();
    auto const& resource = all[decide(all.size() - 1)];
    auto const tree = model::RandomTree(decide).forResource(resource);
    auto const disagreement = model::disagreement(resource, tree.get());
    fuzz::require(disagreement.empty(), disagreement);
    return 0;
}
