#include <gtest/gtest.h>

#include "Forms.h"

#include "services/velocitythreshold/Thresholds.h"

namespace frame_test {
namespace {

using zel::kiv::common::velocitythreshold::Thresholds;

/// One good entry, one poor one, one with a null and one that is no object.
Tree given()
{
    return {List{{Map{{"id", text("1")},
                      {"name", text("city")},
                      {"speed", {50}},
                      {"thresholdIsExceeded", {true}},
                      {"uri", text("/velocitythreshold/thresholds/1")}}},
                 {Map{{"thresholdIsExceeded", {false}}}},
                 {Map{{"name", text("motorway")}, {"uri", nothing}}},
                 {7}}};
}

char const* const expected = R"([{"id":"1","name":"city","thresholdIsExceeded":true,)"
                             R"("uri":"/velocitythreshold/thresholds/1"},)"
                             R"({"thresholdIsExceeded":false},{"name":"motorway"},{}])";

TEST(Thresholds, goInAndComeOutInThreeForms)
{
    auto const thresholds = read<Thresholds>(given());
    ASSERT_EQ(thresholds->getNumberOfElements(), 4U);
    EXPECT_EQ(full(*thresholds), expected);

    auto const& slots = thresholds->getObjects();
    EXPECT_EQ(reference(*slots[0]), R"("/velocitythreshold/thresholds/1")");
    EXPECT_TRUE(slots[0]->getThresholdIsExceeded());
    EXPECT_TRUE(slots[1]->isThresholdIsExceededSet());
    EXPECT_FALSE(slots[2]->isUriSet());
    EXPECT_FALSE(slots[3]->isThresholdIsExceededSet());
    for (auto const& each : slots) {
        EXPECT_EQ(shallow(*each), full(*each)) << "nothing is nested";
        EXPECT_EQ(form(*each, static_cast<zel::kiv::common::SerializationType>(9)), full(*each));
    }
    for (std::size_t slot : {1U, 2U, 3U}) {
        EXPECT_EQ(reference(*slots[slot]), R"("")");
    }
}

TEST(Thresholds, appendWithEveryCallAndTakeNothingButAnArray)
{
    auto const thresholds = read<Thresholds>(given());
    for (Tree const& other : {Tree{Map{{"id", text("1")}}}, text("/a/b/1"), Tree{7}, Tree{0.5},
                              Tree{true}, Tree{Tree::Other{"Null"}}, nothing}) {
        EXPECT_TRUE(thresholds->deserialize(model::valueOf(other).get()));
    }
    EXPECT_EQ(thresholds->getNumberOfElements(), 4U);
    EXPECT_TRUE(thresholds->deserialize(model::valueOf(given()).get()));
    EXPECT_EQ(thresholds->getNumberOfElements(), 8U);

    // An entry is never taken for a uri, and a null one is an element too.
    auto const empty = read<Thresholds>({List{text("/velocitythreshold/thresholds/1"), nothing}});
    EXPECT_EQ(full(*empty), "[{},{}]");
}

TEST(Thresholds, keepTheSlotOfAnExtractedElement)
{
    auto const thresholds = read<Thresholds>(given());
    EXPECT_EQ(thresholds->extractElement(4), nullptr);
    auto const taken = thresholds->extractElement(1);
    EXPECT_EQ(full(*taken), R"({"thresholdIsExceeded":false})");
    EXPECT_EQ(thresholds->getNumberOfElements(), 4U);
    EXPECT_EQ(thresholds->getObjects()[1], nullptr);
    EXPECT_EQ(thresholds->extractElement(1), nullptr);
    thresholds->addObject(nullptr);
    EXPECT_EQ(thresholds->getNumberOfElements(), 5U);
}

} // namespace
} // namespace frame_test
