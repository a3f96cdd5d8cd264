#include "tests/model/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <memory>
#include <pthread.h>
#include <string>
#include <vector>

/// Elements one in the other, as deep as nobody needs them.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
using samples::Field;
using samples::Resource;
using zel::kiv::catalogue::resources;

constexpr std::size_t depth = 10'000;

/// Optimised code has to make do with the stack that threads have by default. What checks itself
/// takes several times as much.
#ifdef NDEBUG
constexpr std::size_t stackSize = 8UL << 20U;
#else
constexpr std::size_t stackSize = 256UL << 20U;
#endif
constexpr std::size_t stackForComparison = 1UL << 30U;

/// A field and the resource whose element may lie in it.
struct Step {
    Field const* field;
    Resource const* target;
};

/// The shortest way from an element of `resource` down to another one of the same resource; empty
/// if there is none.
std::vector<Step> wayToItself(Resource const& resource)
{
    std::map<Resource const*, std::vector<Step>> ways;
    std::deque<Resource const*> next{&resource};
    for (; !next.empty(); next.pop_front()) {
        std::vector<Step> const before = ways[next.front()];
        for (Field const& field : next.front()->fields) {
            for (Resource const* const target : field.targets) {
                auto way = before;
                way.push_back({&field, target});
                if (target == &resource) {
                    return way;
                }
                if (ways.try_emplace(target, way).second) {
                    next.push_back(target);
                }
            }
        }
    }
    return {};
}

/// An object of `resource` with others in it, `levels` of them one in the other, along `way`.
std::unique_ptr<Value> chainOf(Resource const& resource, std::vector<Step> const& way,
                               std::size_t levels)
{
    std::unique_ptr<Value> inner;
    for (std::size_t level = levels + 1; level-- > 0;) {
        std::size_t const index = level % way.size();
        Resource const* const holder = index == 0 ? &resource : way[index - 1].target;
        auto object = std::make_unique<Object>();
        object->setNew("uri", new String('/' + samples::nameOf(*holder) + "/7"));
        if (inner != nullptr && isList(way[index].field->kind)) {
            auto array = std::make_unique<Array>();
            array->pushNew(inner.release());
            inner = std::move(array);
        }
        if (inner != nullptr) {
            object->setNew(std::string(way[index].field->key).c_str(), inner.release());
        }
        inner = std::move(object);
    }
    return inner;
}

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

void goThrough(Resource const& resource, std::vector<Step> const& way)
{
    std::size_t const alive = allocations::alive();
    std::size_t made = 0;
    for (std::size_t const at : {depth / 10, depth}) {
        auto const chain = chainOf(resource, way, at);
        std::unique_ptr<Value> form;
        std::size_t const before = allocations::made();
        onStack(stackSize, [&] {
            auto const element = resource.makeElement();
            element->deserialize(chain.get());
            form = element->serialize(SerializationType::Full);
        });
        std::size_t const now = allocations::made() - before;
        onStack(stackForComparison, [&] {
            auto const given = model::treeOf(chain.get());
            ASSERT_TRUE(model::difference(given, model::treeOf(form.get())).empty());
        });
        ASSERT_TRUE(made == 0 || now < 11 * made) << made << " " << now;
        made = now;
    }
    ASSERT_EQ(allocations::alive(), alive);
}

TEST(Depth, IsBorneByEveryClassThatHoldsItself)
{
    std::size_t classes = 0;
    for (Resource const& resource : resources()) {
        auto const way = wayToItself(resource);
        if (way.empty()) {
            continue;
        }
        SCOPED_TRACE(samples::nameOf(resource));
        goThrough(resource, way);
        ++classes;
    }
    EXPECT_GE(classes, 10U);
}

} // namespace
