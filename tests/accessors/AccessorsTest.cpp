#include "tests/accessors/Fields.h"
#include "tests/model/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "catalogue/Catalogue.h"
#include "frame/IObjectBase.h"

#include <gtest/gtest.h>

namespace accessors {
namespace {

using model::difference;

/// What the field holds after the samples of these numbers.
Tree held(Field const& field, std::vector<int> const& numbers)
{
    if (!field.isList) {
        return field.sample(numbers.back());
    }
    Tree::List list;
    for (int const number : numbers) {
        list.push_back(field.sample(number));
    }
    return {list};
}

Tree::Member memberFor(Field const& field, std::vector<int> const& numbers)
{
    return {std::string(field.key), held(field, numbers)};
}

/// Checks that `field` and no other is set in the element, and holds these samples.
void expectAlone(ElementFields const& element, IObjectBase const& object, Field const& field,
                 std::vector<int> const& numbers)
{
    for (auto const& each : element.fields) {
        EXPECT_EQ(each.isSet(object), each.key == field.key) << each.key;
    }
    EXPECT_EQ(difference(held(field, numbers), field.get(object)), "");
    EXPECT_EQ(difference({Tree::Map{memberFor(field, numbers)}}, samples::fullOf(object)), "");
}

template <typename Check>
void forEachElement(Check check)
{
    auto const all = allFields();
    ASSERT_EQ(all.size(), zel::kiv::catalogue::resources().size());
    for (ElementFields const& element : all) {
        SCOPED_TRACE(element.name);
        check(element);
    }
}

TEST(Accessors, serveTheirOwnFieldAlone)
{
    forEachElement([](ElementFields const& element) {
        for (auto const& field : element.fields) {
            SCOPED_TRACE(field.key);
            auto const object = element.make();
            for (auto const& each : element.fields) {
                EXPECT_FALSE(each.isSet(*object)) << each.key;
            }
            EXPECT_TRUE(field.put(*object, 1));
            expectAlone(element, *object, field, {1});
            EXPECT_TRUE(field.put(*object, 0)); // the zero values too are set
            expectAlone(element, *object, field, {1, 0});
        }
    });
}

TEST(Accessors, workBesideEachOther)
{
    forEachElement([](ElementFields const& element) {
        auto const object = element.make();
        Tree::Map expected;
        int number = 0;
        for (auto const& field : element.fields) {
            EXPECT_TRUE(field.put(*object, ++number)) << field.key;
            expected.push_back(memberFor(field, {number}));
        }
        number = 0;
        for (auto const& field : element.fields) {
            EXPECT_TRUE(field.isSet(*object)) << field.key;
            EXPECT_EQ(difference(held(field, {++number}), field.get(*object)), "") << field.key;
        }
        EXPECT_EQ(difference({expected}, samples::fullOf(*object)), "");
    });
}

/// Every target of a polymorphic field, one after the other and back again.
TEST(Accessors, setAnyClassThatTheFieldMayHoldAndLeaveNothingBehind)
{
    forEachElement([](ElementFields const& element) {
        for (auto const& field : element.fields) {
            std::size_t const before = allocations::alive();
            auto object = element.make();
            for (int const number : {0, 1, 2, 3, 4, 5, 0}) {
                EXPECT_TRUE(field.put(*object, number)) << field.key;
            }
            object.reset();
            EXPECT_EQ(allocations::alive(), before) << field.key;
        }
    });
}

TEST(Resources, keepAndHandOverTheirElements)
{
    forEachElement(
        [](ElementFields const& element) { EXPECT_STREQ(element.faultOfResource(), nullptr); });
}

} // namespace
} // namespace accessors
