#include "tests/model/Text.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IResourceBase.h"
#include "services/guidance/DrivingContexts.h"
#include "services/radio/Presets.h"
#include "tools/sample/Sample.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

/// Makes every single allocation fail in turn, and looks what is left.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
using model::nameOf;
using model::textOf;
using zel::kiv::catalogue::Resource;
using zel::kiv::catalogue::resources;
using zel::kiv::sample::sampleOf;

/// Two elements, with objects and with uris in them, a text and a null.
std::unique_ptr<Value> listOf(Resource const& resource)
{
    auto list = std::make_unique<Array>();
    list->pushNew(sampleOf(resource, 1).release());
    list->pushNew(sampleOf(resource, 0).release());
    list->pushNew(new String("a text that is too long to be kept in place"));
    list->pushNew(nullptr);
    return list;
}

TEST(FailingMemory, LeavesResourcesAsTheyWereOrLonger)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const input = listOf(resource);
        auto const makeFilled = [&] {
            auto filled = resource.makeResource();
            filled->deserialize(input.get());
            return filled;
        };
        std::string form = textOf(makeFilled()->serialize().get());
        form.pop_back(); // the bracket
        std::size_t const alive = allocations::alive();
        auto target = makeFilled();
        std::size_t const failures = allocations::failEach(
            [&] { target->deserialize(input.get()); },
            [&] {
                ASSERT_TRUE(textOf(target->serialize().get()).starts_with(form));
                target.reset();
                ASSERT_EQ(allocations::alive(), alive);
                target = makeFilled();
            });
        EXPECT_GT(failures, resource.fields.size());
        EXPECT_EQ(target->getNumberOfElements(), 8U);
        target.reset();
        EXPECT_EQ(allocations::alive(), alive);
    }
}

/// What was read before stays, so it also tells in which order an element reads: that of its
/// fields.
TEST(FailingMemory, LeavesInElementsTheFieldsThatWereReadBefore)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const input = sampleOf(resource, 1);
        std::size_t const alive = allocations::alive();
        auto element = resource.makeElement();
        auto const countFields = [&] {
            auto const form = element->serialize(SerializationType::Full);
            auto const& map = static_cast<Object const&>(*form).get();
            auto field = resource.fields.begin();
            for (auto const& entry : map) {
                EXPECT_EQ(entry.first, (field++)->key);
            }
            return map.size();
        };
        allocations::failEach([&] { element->deserialize(input.get()); },
                              [&] {
                                  countFields();
                                  element.reset();
                                  ASSERT_EQ(allocations::alive(), alive);
                                  element = resource.makeElement();
                              });
        EXPECT_EQ(countFields(), resource.fields.size());
    }
}

TEST(FailingMemory, LeavesNoHalfOfAForm)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const target = resource.makeResource();
        target->deserialize(listOf(resource).get());
        auto const element = resource.makeElement();
        element->deserialize(sampleOf(resource, 1).get());
        std::string const form = textOf(target->serialize().get());
        std::size_t const alive = allocations::alive();
        auto const check = [&] { ASSERT_EQ(allocations::alive(), alive); };
        std::size_t const failures =
            allocations::failEach([&] { static_cast<void>(target->serialize()); }, check);
        EXPECT_GT(failures, 2 * resource.fields.size());
        for (auto const type :
             {SerializationType::Full, SerializationType::Shallow, SerializationType::Reference}) {
            allocations::failEach([&] { static_cast<void>(element->serialize(type)); }, check);
        }
        EXPECT_EQ(textOf(target->serialize().get()), form);
    }
}

/// Calls an adder twenty times, each time with every allocation failing in turn; `count` tells how
/// long the list is.
template <typename Add, typename Count>
void expectEachAdditionIsWholeOrNot(Add add, Count count)
{
    std::size_t failures = 0;
    for (std::size_t size = 0; size < 20; ++size) {
        std::size_t const alive = allocations::alive();
        failures += allocations::failEach(add, [&] {
            ASSERT_EQ(count(), size);
            ASSERT_EQ(allocations::alive(), alive);
        });
        ASSERT_EQ(count(), size + 1);
    }
    EXPECT_GE(failures, 5U);
}

TEST(FailingMemory, LosesNothingThatIsHandedToAnAdder)
{
    radio::Presets presets;
    expectEachAdditionIsWholeOrNot(
        [&] { presets.addObject(std::make_unique<radio::Presets::PresetObject>()); },
        [&] { return presets.getNumberOfElements(); });
    guidance::DrivingContexts::DrivingContextObject element;
    expectEachAdditionIsWholeOrNot(
        [&] { element.addAreaEvents(std::make_unique<ExternalResourceObject>()); },
        [&] {
            std::size_t const size = element.getAreaEvents().size();
            EXPECT_EQ(element.isAreaEventsSet(), size > 0);
            return size;
        });
}

TEST(FailingMemory, KeepsTheTextThatASetterCouldNotReplace)
{
    std::string const longer(1000, 'x');
    radio::Presets::PresetObject element;
    EXPECT_EQ(allocations::failEach([&] { element.setName(longer); },
                                    [&] { EXPECT_FALSE(element.isNameSet()); }),
              1U);
    std::string const longest(5000, 'y');
    EXPECT_EQ(allocations::failEach([&] { element.setName(longest); },
                                    [&] { EXPECT_EQ(element.getName(), longer); }),
              1U);
    EXPECT_EQ(element.getName(), longest);
}

} // namespace
