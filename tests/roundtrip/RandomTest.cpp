#include "tests/model/Agreement.h"
#include "tests/model/RandomTree.h"
#include "tests/model/Samples.h"

#include "values/values.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>

/// Library against model on random trees. `ZEL_KIV_SEED` and `ZEL_KIV_TREES` in the environment set
/// the first seed and the number of trees for each resource.
namespace {

using namespace samples;

#ifdef NDEBUG
constexpr std::uint64_t treesEach = 2000;
#else
constexpr std::uint64_t treesEach = 100; // slow under the sanitizers
#endif

std::uint64_t setting(char const* name, std::uint64_t otherwise)
{
    char const* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

std::set<std::string> services()
{
    std::set<std::string> names;
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        names.emplace(resource.service);
    }
    return names;
}

class RandomTrees : public testing::TestWithParam<std::string> {};

TEST_P(RandomTrees, comeOutAsTheModelSays)
{
    auto const first = setting("ZEL_KIV_SEED", 1);
    auto const trees = setting("ZEL_KIV_TREES", treesEach);
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        if (resource.service != GetParam()) {
            continue;
        }
        for (std::uint64_t seed = first; seed < first + trees; ++seed) {
            auto const value = model::RandomTree(seed).forResource(resource);
            int const times = seed % 16 == 0 ? 2 : 1;
            std::string const found = model::disagreement(resource, value.get(), times);
            ASSERT_EQ(found, "") << nameOf(resource) << " with ZEL_KIV_SEED=" << seed << ", given "
                                 << model::describe(model::treeOf(value.get()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, RandomTrees, testing::ValuesIn(services()),
                         [](auto const& service) { return service.param; });

} // namespace
