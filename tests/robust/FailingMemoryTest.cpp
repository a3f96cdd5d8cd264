#include "tests/model/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "services/guidance/DrivingContexts.h"
#include "services/radio/Presets.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

/// Makes every single allocation fail in turn, and looks what is left.
namespace {

using namespace samples;
using namespace zel::kiv::common;
using zel::kiv::catalogue::resources;

/// Two elements, with objects and with uris in them, a text and a null.
Tree listOf(Resource const& resource)
{
    return {Tree::List{sampleOf(&resource, 0, 1),
                       withUris(resource, sampleOf(&resource, 1, 1)),
                       {std::string("a text that is too long to be kept in place")},
                       {Tree::Nothing{}}}};
}

bool hasAllKeysOf(Tree const& whole, Tree const& part)
{
    auto const& map = std::get<Tree::Map>(whole.content);
    return std::ranges::includes(map, std::get<Tree::Map>(part.content), {}, &Tree::Member::key,
                                 &Tree::Member::key);
}

bool beginsWith(Tree whole, Tree const& part)
{
    auto& list = std::get<Tree::List>(whole.content);
    std::size_t const size = std::get<Tree::List>(part.content).size();
    list.resize(std::min(list.size(), size));
    return model::difference(part, whole).empty();
}

TEST(FailingMemory, LeavesResourcesAsTheyWereOrLonger)
{
    std::size_t total = 0;
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const input = model::valueOf(listOf(resource));
        auto const makeFilled = [&] {
            auto filled = resource.makeResource();
            filled->deserialize(input.get());
            return filled;
        };
        Tree const form = model::treeOf(makeFilled()->serialize().get());
        std::size_t const alive = allocations::alive();
        auto target = makeFilled();
        std::size_t const failures = allocations::failEach(
            [&] { target->deserialize(input.get()); },
            [&] {
                ASSERT_TRUE(beginsWith(model::treeOf(target->serialize().get()), form));
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
        Tree const plain = sampleOf(&resource, 0, 0);
        Tree const form = sampleOf(&resource, 0, 1);
        auto const all = model::valueOf(form);
        std::size_t const alive = allocations::alive();
        auto target = elementFrom(resource, plain);
        auto const check = [&] {
            ASSERT_TRUE(hasAllKeysOf(fullOf(*target), plain));
            target.reset();
            ASSERT_EQ(allocations::alive(), alive);
            target = elementFrom(resource, plain);
        };
        EXPECT_GT(allocations::failEach([&] { target->deserialize(all.get()); }, check), 0U);
        EXPECT_TRUE(hasAllKeysOf(fullOf(*target), form));
        target.reset();
        EXPECT_EQ(allocations::alive(), alive);
    }
}

TEST(FailingMemory, LeavesNoHalfOfAForm)
{
    for (Resource const& resource : resources()) {
        SCOPED_TRACE(nameOf(resource));
        auto const target = resource.makeResource();
        target->deserialize(model::valueOf(listOf(resource)).get());
        auto const element = elementFrom(resource, sampleOf(&resource, 0, 1));
        Tree const form = model::treeOf(target->serialize().get());
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
        EXPECT_EQ(model::difference(form, model::treeOf(target->serialize().get())), "");
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
