#include <gtest/gtest.h>

#include "Forms.h"

#include "frame/ExternalResourceObject.h"
#include "services/door/SwitchControls.h"
#include "services/guidance/DrivingContexts.h"

#include <type_traits>
#include <typeinfo>

namespace frame_test {
namespace {

using zel::kiv::common::ExternalResourceObject;
using zel::kiv::common::ExternalResourceObjectDeserializer;
using Control = zel::kiv::common::door::SwitchControls::SwitchControlObject;
using Context = zel::kiv::common::guidance::DrivingContexts::DrivingContextObject;

TEST(ExternalResource, readsItsThreeFieldsAndNoMore)
{
    Tree const given{Map{{"id", text("1")}, {"name", {7}}, {"other", {1}}, {"uri", nothing}}};
    auto const object = read<ExternalResourceObject>(given);
    EXPECT_EQ(full(*object), R"({"id":"1","name":"7"})");
    EXPECT_EQ(shallow(*object), full(*object));
    EXPECT_EQ(reference(*object), R"("")");
    EXPECT_FALSE(object->isUriSet());
    object->setUri("/a/b/1");
    object->setId("");
    EXPECT_EQ(full(*object), R"({"id":"","name":"7","uri":"/a/b/1"})");
    EXPECT_EQ(reference(*object), R"("/a/b/1")");

    for (Tree const& other : {Tree{List{text("x")}}, Tree{List{}}, text("/a/b/2"), nothing}) {
        EXPECT_TRUE(object->deserialize(model::valueOf(other).get()));
    }
    EXPECT_EQ(full(*object), R"({"id":"","name":"7","uri":"/a/b/1"})");
}

/// As a field: text is split, an object is not, and anything else leaves an empty reference.
TEST(ExternalResource, standsInFieldsAndLists)
{
    auto const restricted = [](Tree const& reason) {
        return read<Control>({Map{{"restrictionReason", reason}}});
    };
    auto const byUri = restricted(text("/some/where/3"));
    EXPECT_EQ(full(*byUri), R"({"restrictionReason":{"id":"3","uri":"/some/where/3"}})");
    EXPECT_EQ(shallow(*byUri), R"({"restrictionReason":"/some/where/3"})");
    EXPECT_EQ(full(*restricted(text("/some/where"))),
              R"({"restrictionReason":{"uri":"/some/where"}})");
    EXPECT_EQ(full(*restricted({Map{{"uri", text("/some/where/3")}}})),
              R"({"restrictionReason":{"uri":"/some/where/3"}})");
    auto const empty = restricted({7});
    EXPECT_EQ(full(*empty), R"({"restrictionReason":{}})");
    EXPECT_EQ(shallow(*empty), R"({"restrictionReason":""})");

    auto const context = read<Context>(
        {Map{{"areaEvents", {List{text("/a/b/1"), nothing, {7}, {Map{{"name", text("n")}}}}}}}});
    EXPECT_EQ(full(*context), R"({"areaEvents":[{"id":"1","uri":"/a/b/1"},{},{"name":"n"}]})");
    EXPECT_EQ(shallow(*context), R"({"areaEvents":["/a/b/1","",""]})");
    EXPECT_EQ(context->getAreaEvents().at(2)->getName(), "n");
}

/// Clients see the visitor's class and can make none.
TEST(ExternalResource, showsItsVisitorsClass)
{
    EXPECT_NE(typeid(ExternalResourceObjectDeserializer),
              typeid(zel::dataformats::data::ConstVisitor));
    EXPECT_FALSE(
        (std::is_constructible_v<ExternalResourceObjectDeserializer, ExternalResourceObject&>));
}

} // namespace
} // namespace frame_test
