#include "tests/model/Text.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IResourceBase.h"
#include "services/door/SwitchControls.h"
#include "services/radio/Presets.h"
#include "services/velocitythreshold/Thresholds.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

/// Large input costs what it holds and no more.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;

std::unique_ptr<Value> manyElements(std::size_t size)
{
    auto array = std::make_unique<Array>();
    for (std::size_t index = 0; index < size; ++index) {
        auto object = std::make_unique<Object>();
        object->setNew("id", new String(std::to_string(index)));
        array->pushNew(object.release());
    }
    return array;
}

std::unique_ptr<Value> manyUnknownKeys(std::size_t size)
{
    auto object = std::make_unique<Object>();
    for (std::size_t index = 0; index < size; ++index) {
        object->setNew(("unknown " + std::to_string(index)).c_str(), new Integer(1));
    }
    return object;
}

std::unique_ptr<Value> longList(std::size_t size)
{
    auto array = std::make_unique<Array>();
    for (std::size_t index = 0; index < size; ++index) {
        array->pushNew(new String("entry"));
    }
    auto object = std::make_unique<Object>();
    object->setNew("switchValueConfigurations", array.release());
    return object;
}

/// What reading and writing take, for an entry of the input.
template <typename Target>
double allocationsFor(std::unique_ptr<Value> (*makeInput)(std::size_t), std::size_t size)
{
    auto const input = makeInput(size);
    std::size_t const before = allocations::made();
    Target target;
    target.deserialize(input.get());
    if constexpr (std::is_base_of_v<IResourceBase, Target>) {
        static_cast<void>(target.serialize());
    } else {
        static_cast<void>(target.serialize(SerializationType::Full));
    }
    return static_cast<double>(allocations::made() - before) / static_cast<double>(size);
}

template <typename Target>
void expectNoMoreForEach(std::unique_ptr<Value> (*makeInput)(std::size_t))
{
    EXPECT_LE(allocationsFor<Target>(makeInput, 32'000),
              allocationsFor<Target>(makeInput, 1'000) + 0.01);
}

TEST(Size, ManyEntriesCostNoMoreEachThanFew)
{
    std::size_t const before = allocations::alive();
    expectNoMoreForEach<velocitythreshold::Thresholds>(manyElements);
    expectNoMoreForEach<radio::Presets::PresetObject>(manyUnknownKeys);
    expectNoMoreForEach<door::SwitchControls::SwitchControlObject>(longList);
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Size, LongTexts)
{
    // A zero every few bytes: no part of the way may stop at one.
    std::string text = std::string("zero\0\0", 6);
    while (text.size() < 5'000'000) {
        text += text;
    }
    Object object;
    object.setNew("name", new String(text));
    object.setNew("station", new String("/radio/stations/" + text));
    radio::Presets::PresetObject element;
    std::size_t const made = allocations::made();
    element.deserialize(&object);
    EXPECT_LE(allocations::made() - made, 30U);
    EXPECT_EQ(element.getName(), text);
    ASSERT_TRUE(element.isRadioStationsStationObjectStationSet());
    EXPECT_TRUE(model::textOf(element, SerializationType::Shallow) == model::textOf(&object));
}

} // namespace
