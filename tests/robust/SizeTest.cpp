#include "tests/model/Tree.h"
#include "tests/robust/Scale.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "services/door/SwitchControls.h"
#include "services/radio/Presets.h"
#include "services/velocitythreshold/Thresholds.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <malloc.h>
#include <memory>
#include <string>

/// Large input costs what it holds and no more. Small sizes stand for large ones here;
/// `ROBUST_LARGE=1` in the environment takes the large ones.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
using robust::scaled;

/// What one piece of work took.
struct Cost {
    double allocations = 0;
    double seconds = 0; ///< of this thread's processor time
};

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// The least of three runs, since a busy machine only ever adds.
template <typename Work>
Cost costOf(Work work)
{
    Cost least{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int run = 0; run < 3; ++run) {
        auto const made = static_cast<double>(allocations::made());
        double const start = threadSeconds();
        work();
        least.seconds = std::min(least.seconds, threadSeconds() - start);
        least.allocations =
            std::min(least.allocations, static_cast<double>(allocations::made()) - made);
    }
    return least;
}

void write(IResourceBase const& resource)
{
    static_cast<void>(resource.serialize());
}

void write(IObjectBase const& element)
{
    static_cast<void>(element.serialize(SerializationType::Full));
}

/// Reads and writes input of two sizes, the second eight times the first. Eight times as many
/// allocations must do; of time, which is less certain, what grows with the square would take 64
/// times as much.
template <typename Target, typename MakeInput>
void expectLinearGrowth(std::size_t size, MakeInput makeInput)
{
    auto const costAt = [&](std::size_t at) {
        auto const input = makeInput(at);
        return costOf([&] {
            Target target;
            target.deserialize(input.get());
            write(target);
        });
    };
    Cost const small = costAt(size / 8);
    Cost const large = costAt(size);
    EXPECT_LE(large.allocations, 8.5 * small.allocations + 100);
    EXPECT_LE(large.seconds, 24 * small.seconds + 0.01);
    std::printf("size %zu: %.0f allocations, %.3f s; an eighth of it: %.0f and %.3f s\n", size,
                large.allocations, large.seconds, small.allocations, small.seconds);
}

class Size : public testing::Test {
protected:
    void SetUp() override
    {
        m_alive = allocations::alive();
        m_inUse = inUse();
    }

    void TearDown() override
    {
        EXPECT_EQ(allocations::alive(), m_alive);
        malloc_trim(0);
        // The allocator keeps a little of what is free in a cache, which counts as used.
        EXPECT_LE(inUse(), m_inUse + (1U << 20U));
    }

private:
    static std::size_t inUse()
    {
        auto const info = mallinfo2();
        return info.uordblks + info.hblkhd;
    }

    std::size_t m_alive = 0;
    std::size_t m_inUse = 0;
};

TEST_F(Size, ManyElements)
{
    expectLinearGrowth<velocitythreshold::Thresholds>(scaled(1'000'000), [](std::size_t size) {
        auto array = std::make_unique<Array>();
        for (std::size_t index = 0; index < size; ++index) {
            auto object = std::make_unique<Object>();
            object->setNew("id", new String(std::to_string(index)));
            array->pushNew(object.release());
        }
        return array;
    });
}

TEST_F(Size, ManyUnknownKeys)
{
    expectLinearGrowth<radio::Presets::PresetObject>(scaled(100'000), [](std::size_t size) {
        auto object = std::make_unique<Object>();
        for (std::size_t index = 0; index < size; ++index) {
            object->setNew(("unknown " + std::to_string(index * 7919 % size)).c_str(),
                           new Integer(1));
        }
        object->setNew("name", new String("known"));
        return object;
    });
}

TEST_F(Size, LongLists)
{
    expectLinearGrowth<door::SwitchControls::SwitchControlObject>(
        scaled(1'000'000), [](std::size_t size) {
            auto array = std::make_unique<Array>();
            for (std::size_t index = 0; index < size; ++index) {
                array->pushNew(new String("entry"));
            }
            auto object = std::make_unique<Object>();
            object->setNew("switchValueConfigurations", array.release());
            return object;
        });
}

TEST_F(Size, LongTexts)
{
    // A zero every few bytes: no part of the way may stop at one.
    std::string text = std::string("zero\0\0", 6);
    std::size_t const size = scaled(100'000'000);
    while (text.size() < size) {
        text += text;
    }
    text.resize(size);
    Object object;
    object.setNew("name", new String(text));
    object.setNew("station", new String("/radio/stations/" + text));
    auto const element = std::make_unique<radio::Presets::PresetObject>();
    std::size_t const made = allocations::made();
    element->deserialize(&object);
    EXPECT_LE(allocations::made() - made, 30U);
    EXPECT_EQ(element->getName(), text);
    ASSERT_TRUE(element->isRadioStationsStationObjectStationSet());
    auto const form = element->serialize(SerializationType::Shallow);
    EXPECT_TRUE(model::difference(model::treeOf(&object), model::treeOf(form.get())).empty());
}

} // namespace
