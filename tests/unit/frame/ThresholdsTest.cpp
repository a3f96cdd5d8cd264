#include "tests/model/Samples.h"

#include "services/velocitythreshold/Thresholds.h"

#include <gtest/gtest.h>

#include <string>

/// The smallest resource from end to end, in plain words: what every other one does as well.
namespace {

using model::describe;
using model::Tree;
using zel::kiv::common::velocitythreshold::Thresholds;

/// One good entry, one poor one, one with a null and one that is no object.
Tree given()
{
    Tree const good{Tree::Map{{"id", {std::string("1")}},
                              {"name", {std::string("city")}},
                              {"speed", {50}},
                              {"thresholdIsExceeded", {true}},
                              {"uri", {std::string("/velocitythreshold/thresholds/1")}}}};
    Tree const poor{Tree::Map{{"thresholdIsExceeded", {false}}}};
    Tree const withNull{Tree::Map{{"name", {std::string("motorway")}}, {"uri", {Tree::Nothing{}}}}};
    return {Tree::List{good, poor, withNull, {7}}};
}

TEST(Thresholds, goInAndComeOutInThreeForms)
{
    Thresholds thresholds;
    EXPECT_TRUE(thresholds.deserialize(model::valueOf(given()).get()));
    ASSERT_EQ(thresholds.getNumberOfElements(), 4U);
    EXPECT_EQ(describe(model::treeOf(thresholds.serialize().get())),
              R"([{"id":"1","name":"city","thresholdIsExceeded":true,)"
              R"("uri":"/velocitythreshold/thresholds/1"},)"
              R"({"thresholdIsExceeded":false},{"name":"motorway"},{}])");

    auto const& slots = thresholds.getObjects();
    EXPECT_TRUE(slots[1]->isThresholdIsExceededSet());
    EXPECT_FALSE(slots[2]->isUriSet());
    EXPECT_FALSE(slots[3]->isThresholdIsExceededSet());
    for (auto const& each : slots) {
        EXPECT_EQ(describe(samples::shallowOf(*each)), describe(samples::fullOf(*each)));
        EXPECT_EQ(describe(samples::referenceOf(*each)), describe({each->getUri()}));
    }
    EXPECT_EQ(slots[0]->getUri(), "/velocitythreshold/thresholds/1");
}

TEST(Thresholds, growWithEveryArrayAndKeepTheSlotOfAnExtractedElement)
{
    Thresholds thresholds;
    for (Tree const& other : {Tree{Tree::Map{}}, Tree{std::string("/a/b/1")}, Tree{7}, Tree{0.5},
                              Tree{true}, Tree{Tree::Nothing{}}, given(), given()}) {
        EXPECT_TRUE(thresholds.deserialize(model::valueOf(other).get()));
    }
    EXPECT_EQ(thresholds.getNumberOfElements(), 8U);
    EXPECT_EQ(thresholds.extractElement(8), nullptr);
    EXPECT_FALSE(thresholds.extractElement(1)->getThresholdIsExceeded());
    EXPECT_EQ(thresholds.extractElement(1), nullptr);
    EXPECT_EQ(thresholds.getNumberOfElements(), 8U);
}

} // namespace
