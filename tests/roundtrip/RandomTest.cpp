#include "tests/model/Agreement.h"
#include "tests/model/Model.h"
#include "tests/model/RandomTree.h"
#include "tests/model/Text.h"
#include "tests/unit/platform/Allocations.h"

#include "values/values.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <stdexcept>
#include <string>

/// Library against model on random trees. `ZEL_KIV_SEED` and `ZEL_KIV_TREES` in the environment set
/// the first seed and the number of trees for each resource.
namespace {

using zel::kiv::catalogue::Resource;
using zel::kiv::catalogue::resources;

#ifdef NDEBUG
constexpr std::uint64_t treesEach = 1000;
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
    for (Resource const& resource : resources()) {
        names.emplace(resource.service);
    }
    return names;
}

/// Whether the platform let the tree be read. Another one than the stand-ins may throw over what
/// most trees have in them, a value of a wrong type or a key that is set twice. That passes through
/// the library, which leaves nothing behind.
bool agrees(Resource const& resource, std::uint64_t seed)
{
    int const times = seed % 16 == 0 ? 2 : 1;
    std::size_t const before = allocations::alive();
    try {
        auto const value = model::RandomTree(seed).forResource(resource);
        EXPECT_EQ(model::disagreement(resource, value.get(), times), "")
            << model::nameOf(resource) << " with ZEL_KIV_SEED=" << seed << ", given "
            << model::textOf(value.get());
        return true;
    } catch (std::logic_error const&) { // which lives on in here
    }
    EXPECT_TRUE(times > 1 || allocations::alive() == before) << seed;
    return false;
}

class RandomTrees : public testing::TestWithParam<std::string> {};

TEST_P(RandomTrees, ComeOutAsTheModelSays)
{
    auto const first = setting("ZEL_KIV_SEED", 1);
    auto const trees = setting("ZEL_KIV_TREES", treesEach);
    for (Resource const& resource : resources()) {
        if (resource.service != GetParam()) {
            continue;
        }
        std::uint64_t read = 0;
        for (std::uint64_t seed = first; seed < first + trees && !HasFailure(); ++seed) {
            read += agrees(resource, seed) ? 1 : 0;
        }
        EXPECT_GE(read, THROWS_OVER_TYPES ? trees / 8 : trees) << model::nameOf(resource);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, RandomTrees, testing::ValuesIn(services()),
                         [](auto const& service) { return service.param; });

/// The model is worth something only if it is right: worked out by hand.
TEST(Model, PredictsAPreset)
{
    using namespace zel::dataformats::data;
    auto* const station = new Object;
    station->setNew("id", new String("7"));
    station->setNew("frequency", new Integer(50));
    station->setNew("unknown", new Integer(50));
    station->setNew("uri", new String("/radio/stations/7"));
    auto* const whole = new Object;
    whole->setNew("name", nullptr);
    whole->setNew("position", new Integer(2));
    whole->setNew("station", station);
    whole->setNew("uri", new String("/radio/presets/1"));
    Array given;
    given.pushNew(whole);
    for (char const* const uri : {"/media/files/8", "/radio/stations"}) {
        auto* const preset = new Object;
        preset->setNew("station", new String(uri));
        given.pushNew(preset);
    }
    given.pushNew(new String("/radio/presets/1"));
    given.pushNew(nullptr);
    auto const model = model::modelOf(*zel::kiv::catalogue::find("radio", "presets"), &given);
    EXPECT_EQ(
        model.full(),
        R"([{"position":2,"station":{"frequency":50,"id":"7","uri":"/radio/stations/7"},)"
        R"("uri":"/radio/presets/1"},{"station":{"id":"8","uri":"/media/files/8"}},{},{},{}])");
    EXPECT_EQ(model.elements().front().shallow(),
              R"({"position":2,"station":"/radio/stations/7","uri":"/radio/presets/1"})");
    EXPECT_EQ(model.elements().front().reference(), R"("/radio/presets/1")");
}

} // namespace
