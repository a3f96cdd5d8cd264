#include "Allocations.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace zel::dataformats::data;

/// Arrays in objects in arrays, `depth` of them, each with something beside the next.
std::unique_ptr<Value> makeChain(int depth)
{
    std::unique_ptr<Value> chain;
    for (int level = 0; level < depth; ++level) {
        if (level % 2 == 0) {
            auto object = std::make_unique<Object>();
            object->setNew("a", new Integer{level});
            object->setNew("b", chain.release());
            // Now and then more than fits in one piece of memory.
            for (int more = 0; more < (level % 100 == 0 ? 20 : 1); ++more) {
                object->setNew(("c" + std::to_string(more)).c_str(), new Integer{level});
            }
            chain = std::move(object);
        } else {
            auto array = std::make_unique<Array>();
            array->pushNew(chain.release());
            array->pushNew(new Object);
            chain = std::move(array);
        }
    }
    return chain;
}

TEST(Freeing, TakesNoStackForDepth)
{
    std::size_t const before = allocations::alive();
    makeChain(150'000).reset();
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Freeing, ReachesEveryPartOfAWideTree)
{
    std::size_t const before = allocations::alive();
    {
        Object wide;
        for (int index = 0; index < 1000; ++index) {
            wide.setNew(std::to_string(index).c_str(), makeChain(index % 200).release());
        }
        std::unique_ptr<Value> const copy{wide.clone()};
    }
    EXPECT_EQ(allocations::alive(), before);
}

TEST(FailingMemory, LosesNoValueHandedToAnObject)
{
    std::vector<std::string> keys;
    keys.reserve(700);
    for (int index = 0; index < 700; ++index) {
        // Some come in order, some do not; some need memory of their own.
        keys.push_back(std::to_string(index * 37 % 1000) +
                       (index % 3 == 0 ? " and much more" : ""));
    }
    std::size_t const before = allocations::alive();
    auto object = std::make_unique<Object>();
    std::size_t failures = 0;
    for (std::string const& key : keys) {
        std::unique_ptr<Value> value = std::make_unique<Integer>(1);
        std::size_t const size = object->get().size();
        std::size_t const alive = allocations::alive();
        failures +=
            allocations::failEach([&] { object->setNew(key.c_str(), value.release()); },
                                  [&] {
                                      // The value is gone, and a directory may have come. Nothing
                                      // else has changed.
                                      EXPECT_GE(allocations::alive() + 1, alive);
                                      EXPECT_EQ(object->get().size(), size);
                                      EXPECT_EQ(object->get().find(key), object->get().end());
                                      value = std::make_unique<Integer>(1);
                                  });
        ASSERT_NE(object->get().find(key), object->get().end());
    }
    EXPECT_EQ(object->get().size(), keys.size());
    EXPECT_GT(failures, keys.size() / 3);
    object.reset();
    EXPECT_EQ(allocations::alive(), before);
}

TEST(FailingMemory, LosesNoValueHandedToAnArray)
{
    std::size_t const before = allocations::alive();
    auto array = std::make_unique<Array>();
    std::size_t failures = 0;
    for (std::size_t size = 0; size < 100; ++size) {
        std::unique_ptr<Value> value = std::make_unique<Integer>(1);
        failures += allocations::failEach([&] { array->pushNew(value.release()); },
                                          [&] {
                                              EXPECT_EQ(array->get().size(), size);
                                              value = std::make_unique<Integer>(1);
                                          });
    }
    EXPECT_EQ(array->get().size(), 100U);
    EXPECT_EQ(failures, 6U);
    array.reset();
    EXPECT_EQ(allocations::alive(), before);
}

TEST(FailingMemory, LeavesNoHalfOfACopy)
{
    std::unique_ptr<Value> const tree = makeChain(60);
    std::size_t const before = allocations::alive();
    std::size_t const failures =
        allocations::failEach([&] { std::unique_ptr<Value> const copy{tree->clone()}; },
                              [&] { EXPECT_EQ(allocations::alive(), before); });
    EXPECT_GT(failures, 200U);
    EXPECT_EQ(allocations::alive(), before);
}

} // namespace
