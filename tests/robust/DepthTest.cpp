#include "tests/model/Text.h"
#include "tests/unit/platform/Allocations.h"

#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <pthread.h>
#include <string>
#include <vector>

/// Elements one in the other, as deep as nobody needs them.
namespace {

using namespace zel::dataformats::data;
using zel::kiv::common::SerializationType;

constexpr int depth = 10'000;

/// Optimised code has to make do with the stack that threads have by default. What checks itself
/// takes several times as much, and so do the trees themselves.
#ifdef NDEBUG
constexpr std::size_t stackSize = 8UL << 20U;
#else
constexpr std::size_t stackSize = 256UL << 20U;
#endif
constexpr std::size_t stackForTrees = 1UL << 30U;

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

/// A field and the resource whose element holds it.
struct Step {
    char const* service;
    char const* resource;
    char const* key;
    bool isList;
};

/// Objects one in the other, by these steps in turn; the first is the outermost.
std::unique_ptr<Value> chainOf(std::vector<Step> const& way)
{
    std::unique_ptr<Value> inner;
    for (std::size_t level = depth; level-- > 0;) {
        Step const& step = way[level % way.size()];
        auto object = std::make_unique<Object>();
        object->setNew("uri",
                       new String(std::string("/") + step.service + '/' + step.resource + "/7"));
        if (inner != nullptr && step.isList) {
            auto array = std::make_unique<Array>();
            array->pushNew(inner.release());
            inner = std::move(array);
        }
        if (inner != nullptr) {
            object->setNew(step.key, inner.release());
        }
        inner = std::move(object);
    }
    return inner;
}

TEST(Depth, IsBorneByElementsListsAndPolymorphicFields)
{
    std::vector<Step> const ways[] = {
        {{"places", "locations", "parent", false}},
        {{"radio", "stations", "relatedShows", true}},
        {{"places", "results", "reference", false}, {"places", "searches", "results", true}},
    };
    for (std::vector<Step> const& way : ways) {
        SCOPED_TRACE(way.front().key);
        std::size_t const before = allocations::alive();
        onStack(stackForTrees, [&] {
            auto const* const resource =
                zel::kiv::catalogue::find(way.front().service, way.front().resource);
            auto const chain = chainOf(way);
            std::unique_ptr<Value> form;
            onStack(stackSize, [&] {
                auto const element = resource->makeElement();
                element->deserialize(chain.get());
                form = element->serialize(SerializationType::Full);
            });
            EXPECT_TRUE(model::textOf(form.get()) == model::textOf(chain.get()));
        });
        EXPECT_EQ(allocations::alive(), before);
    }
}

} // namespace
