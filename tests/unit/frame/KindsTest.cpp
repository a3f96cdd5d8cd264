#include <gtest/gtest.h>

#include "Forms.h"

#include "services/door/DoorSettings.h"
#include "services/guidance/Maneuvers.h"
#include "services/radio/Stations.h"

namespace frame_test {
namespace {

namespace common = zel::kiv::common;

using Station = common::radio::Stations::StationObject;
using Maneuver = common::guidance::Maneuvers::ManeuverObject;
using Setting = common::door::DoorSettings::DoorSettingObject;

/// Text, numbers and flags are read whatever the type of the value is.
TEST(Kinds, plainFieldsAreSetByEveryValueButNull)
{
    Tree const object{Map{{"uri", text("/a/b/c")}}};
    auto const station = read<Station>({Map{{"country", {7}},
                                            {"ecc", text("12")},
                                            {"fixPS", {1}},
                                            {"frequency", {object}},
                                            {"isLocked", {Tree::Other{"Null"}}},
                                            {"language", nothing},
                                            {"region", {object}}}});
    EXPECT_EQ(full(*station), R"({"country":"7","ecc":12,"fixPS":true,"frequency":0,)"
                              R"("isLocked":false,"region":""})");
    auto const maneuver = read<Maneuver>({Map{{"distance", {3}}, {"zLevel", {-2.9}}}});
    EXPECT_EQ(full(*maneuver), R"({"distance":3.0,"zLevel":-2})");
}

TEST(Kinds, presenceFollowsTheSettersAndNotTheValue)
{
    Station station;
    EXPECT_EQ(full(station), "{}");
    EXPECT_EQ(station.getPi() + static_cast<int>(station.getCountry().size()), 0);
    station.setPi(0);
    station.setCountry("");
    station.setIsLocked(false);
    EXPECT_EQ(full(station), R"({"country":"","isLocked":false,"pi":0})");
    EXPECT_TRUE(station.isIsLockedSet());
    EXPECT_FALSE(station.isPodcastSet());
}

TEST(Kinds, listsTakeArraysOfWhatIsThere)
{
    auto const lists = [](Tree const& texts, Tree const& numbers) {
        return full(*read<Station>({Map{{"images", texts}}})) +
               full(*read<Maneuver>({Map{{"sideStreets", numbers}}}));
    };
    EXPECT_EQ(lists({List{text("b"), nothing, {7}, text("a")}}, {List{{3}, nothing, text("4")}}),
              R"({"images":["b","7","a"]}{"sideStreets":[3,4]})");
    for (Tree const& other : {Tree{List{}}, Tree{List{nothing, nothing}}, text("a"), Tree{7},
                              Tree{Map{{"0", text("a")}}}}) {
        EXPECT_EQ(lists(other, other), "{}{}") << model::describe(other);
    }
    auto const station = read<Station>({Map{{"images", {List{text("a")}}}}});
    station->deserialize(model::valueOf({Map{{"images", {List{text("b")}}}}}).get());
    EXPECT_EQ(full(*station), R"({"images":["a","b"]})");
}

TEST(Kinds, elementsAreMadeOfObjectsOfUrisAndOfAnythingElse)
{
    auto const setting = read<Setting>({Map{
        {"doorOpening",
         {Map{{"restrictionReason", text("/r/s/1")}, {"uri", text("/door/switchControls/5")}}}},
        {"velocityThresholdAutoLocking", text("/door/switchControls/6")},
        {"velocityThresholdAutoUnlocking", {List{}}}}});
    EXPECT_EQ(full(*setting),
              R"({"doorOpening":{"restrictionReason":{"id":"1","uri":"/r/s/1"},)"
              R"("uri":"/door/switchControls/5"},)"
              R"("velocityThresholdAutoLocking":{"id":"6","uri":"/door/switchControls/6"},)"
              R"("velocityThresholdAutoUnlocking":{}})");
    EXPECT_EQ(shallow(*setting), R"({"doorOpening":"/door/switchControls/5",)"
                                 R"("velocityThresholdAutoLocking":"/door/switchControls/6",)"
                                 R"("velocityThresholdAutoUnlocking":""})");
}

/// A class that holds itself, and a uri that names another resource, which nobody compares.
TEST(Kinds, elementListsRecurseAsDeepAsTheValue)
{
    Tree const inner{Map{{"relatedStations", {List{text("/radio/stations/3"), {7}}}}}};
    Tree const middle{Map{{"audioSegment", {Map{{"station", inner}}}}}};
    auto const station =
        read<Station>({Map{{"category", text("/radio/categories/1")}, // one text is no list
                           {"relatedStations", {List{middle, nothing, text("/door/doors/9")}}}}});
    EXPECT_EQ(full(*station),
              R"({"relatedStations":[{"audioSegment":{"station":{"relatedStations":)"
              R"([{"id":"3","uri":"/radio/stations/3"},{}]}}},)"
              R"({"id":"9","uri":"/door/doors/9"}]})");
    EXPECT_EQ(shallow(*station), R"({"relatedStations":["","/door/doors/9"]})");
}

/// A type beyond the three is handed down as it is.
TEST(Kinds, anUnknownTypeIsFull)
{
    auto const setting = read<Setting>(
        {Map{{"doorOpening", {Map{{"restrictionReason", {Map{{"name", text("n")}}}}}}}}});
    for (int const number : {3, -1, 1000}) {
        EXPECT_EQ(form(*setting, static_cast<common::SerializationType>(number)), full(*setting));
    }
    EXPECT_EQ(full(*setting), R"({"doorOpening":{"restrictionReason":{"name":"n"}}})");
}

} // namespace
} // namespace frame_test
