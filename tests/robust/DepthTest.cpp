#include "tests/robust/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <gtest/gtest.h>

#include <memory>
#include <pthread.h>
#include <string>

/// Elements one in the other, as deep as nobody needs them.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
using zel::kiv::catalogue::resources;

constexpr std::size_t depth = 10'000;

/// Optimised code has to make do with the stack that threads have by default. What checks itself
/// takes several times as much.
#ifdef NDEBUG
constexpr std::size_t stackSize = 8UL << 20U;
#else
constexpr std::size_t stackSize = 256UL << 20U;
#endif

template <typename Work>
void onStack(std::size_t size, Work work)
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
    pthread_t thread{};
    auto const start = [](void* argument) -> void* {
        (*static_cast<Work*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, start, &work), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

void goThrough(samples::Resource const& resource, std::vector<samples::Step> const& way)
{
    std::size_t const alive = allocations::alive();
    std::size_t made = 0;
    for (std::size_t const at : {depth / 10, depth}) {
        auto const chain = samples::chainOf(resource, way, at);
        std::size_t const before = allocations::made();
        auto const element = resource.makeElement();
        element->deserialize(chain.get());
        ASSERT_TRUE(samples::same(element->serialize(SerializationType::Full).get(), chain.get()));
        std::size_t const now = allocations::made() - before;
        ASSERT_TRUE(made == 0 || now < 11 * made) << made << " " << now;
        made = now;
    }
    ASSERT_EQ(allocations::alive(), alive);
}

TEST(Depth, IsBorneByEveryClassThatHoldsItself)
{
    std::size_t classes = 0;
    for (auto const& resource : resources()) {
        auto const way = samples::wayToItself(resource);
        if (way.empty()) {
            continue;
        }
        SCOPED_TRACE(std::string(resource.service) + "::" + std::string(resource.name));
        onStack(stackSize, [&] { goThrough(resource, way); });
        ++classes;
    }
    EXPECT_GE(classes, 10U);
}

} // namespace
