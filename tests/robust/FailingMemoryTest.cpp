#include "tests/robust/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "services/guidance/DrivingContexts.h"
#include "services/radio/Presets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

/// Makes every single allocation fail in turn, and looks what is left.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
using samples::Resource;
using zel::kiv::catalogue::resources;

std::string nameOf(Resource const& resource)
{
    return std::string(resource.service) + "::" + std::string(resource.name);
}

bool hasAllKeysOf(Value const& whole, Value const& part)
{
    auto const& map = static_cast<Object const&>(whole).get();
    for (auto const& entry : static_cast<Object const&>(part).get()) {
        if (map.find(entry.first) == map.end()) {
            return false;
        }
    }
    return true;
}

bool beginsWith(Value& whole, Value& part)
{
    auto const& entries = static_cast<Array&>(whole).get();
    auto const& first = static_cast<Array&>(part).get();
    return entries.size() >= first.size() &&
           std::equal(first.begin(), first.end(), entries.begin(), samples::same);
}

TEST(FailingMemory, LeavesResourcesAsTheyWereOrLonger)
{
    std::size_t total = 0;
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const input = samples::arrayOf(resource);
        auto const makeFilled = [&] {
            auto filled = resource.makeResource();
            filled->deserialize(input.get());
            return filled;
        };
        auto const form = makeFilled()->serialize();
        std::size_t const alive = allocations::alive();
        auto target = makeFilled();
        std::size_t const failures =
            allocations::failEach([&] { target->deserialize(input.get()); },
                                  [&] {
                                      ASSERT_TRUE(beginsWith(*target->serialize(), *form));
                                      target.reset();
                                      ASSERT_EQ(allocations::alive(), alive);
                                      target = makeFilled();
                                  });
        EXPECT_GT(failures, resource.fields.size());
        EXPECT_EQ(target->getNumberOfElements(), 8U);
        target.reset();
        EXPECT_EQ(allocations::alive(), alive);
        total += failures;
    }
    std::printf("%zu allocations failed in turn\n", total);
}

TEST(FailingMemory, KeepsWhatElementsHadBefore)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const plain = samples::objectOf(resource, samples::Fields::Plain);
        auto const all = samples::objectOf(resource, samples::Fields::All);
        auto const form = [&] {
            auto const element = resource.makeElement();
            element->deserialize(plain.get());
            return element->serialize(SerializationType::Full);
        }();
        std::size_t const alive = allocations::alive();
        auto target = resource.makeElement();
        target->deserialize(plain.get());
        auto const check = [&] {
            ASSERT_TRUE(hasAllKeysOf(*target->serialize(SerializationType::Full), *form));
            target.reset();
            ASSERT_EQ(allocations::alive(), alive);
            target = resource.makeElement();
            target->deserialize(plain.get());
        };
        EXPECT_GT(allocations::failEach([&] { target->deserialize(all.get()); }, check), 0U);
        EXPECT_TRUE(hasAllKeysOf(*target->serialize(SerializationType::Full), *all));
        target.reset();
        EXPECT_EQ(allocations::alive(), alive);
    }
}

TEST(FailingMemory, LeavesNoHalfOfAForm)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const input = samples::arrayOf(resource);
        auto const target = resource.makeResource();
        target->deserialize(input.get());
        auto const element = resource.makeElement();
        element->deserialize(static_cast<Array&>(*input).get()[0]);
        auto const form = target->serialize();
        std::size_t const alive = allocations::alive();
        auto const check = [&] { ASSERT_EQ(allocations::alive(), alive); };
        std::size_t const failures =
            allocations::failEach([&] { static_cast<void>(target->serialize()); }, check);
        EXPECT_GT(failures, 2 * resource.fields.size());
        for (auto const type :
             {SerializationType::Full, SerializationType::Shallow, SerializationType::Reference}) {
            EXPECT_GT(
                allocations::failEach([&] { static_cast<void>(element->serialize(type)); }, check),
                0U);
        }
        EXPECT_TRUE(samples::same(target->serialize().get(), form.get()));
    }
}

/// Calls an adder twenty times, each time with every allocation failing in turn; `count` tells how
/// long the list is.
template <typename Add, typename Count>
void expectEachAdditionIsWholeOrNot(Add add, Count count)
{
    std::size_t failures = 0;
    for (std::size_t size = 0; size < 20; ++size) {
        std::size_t alive = allocations::alive();
        failures += allocations::failEach(
            [&] {
                alive = allocations::alive();
                add();
            },
            [&] {
                ASSERT_EQ(count(), size);
                ASSERT_EQ(allocations::alive(), alive);
            });
        ASSERT_EQ(count(), size + 1);
    }
    EXPECT_GE(failures, 5U);
}

TEST(FailingMemory, LosesNothingThatIsHandedToAnAdder)
{
    std::size_t const alive = allocations::alive();
    {
        radio::Presets presets;
        expectEachAdditionIsWholeOrNot(
            [&] { presets.addObject(std::make_unique<radio::Presets::PresetObject>()); },
            [&] { return presets.getNumberOfElements(); });
    }
    {
        guidance::DrivingContexts::DrivingContextObject element;
        expectEachAdditionIsWholeOrNot(
            [&] { element.addAreaEvents(std::make_unique<ExternalResourceObject>()); },
            [&] { return element.isAreaEventsSet() ? element.getAreaEvents().size() : 0; });
    }
    EXPECT_EQ(allocations::alive(), alive);
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
