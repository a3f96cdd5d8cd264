#include "testing/fromJson.h"
#include "tests/model/Text.h"

#include "services/velocitythreshold/Thresholds.h"

#include <gtest/gtest.h>

#include <string>

/// The smallest resource from end to end, in plain words: what every other one does as well.
namespace {

using model::textOf;
using zel::kiv::common::SerializationType;
using zel::kiv::common::velocitythreshold::Thresholds;
using zel::kiv::testing::fromJson;

/// One good entry, one poor one, one with a null and one that is no object.
std::string const given = R"([
    {"id":"1","name":"city","speed":50,"thresholdIsExceeded":true,
     "uri":"/velocitythreshold/thresholds/1"},
    {"thresholdIsExceeded":false},{"name":"motorway","uri":null},7])";

TEST(Thresholds, GoInAndComeOutInThreeForms)
{
    Thresholds thresholds;
    EXPECT_TRUE(thresholds.deserialize(fromJson(given).get()));
    ASSERT_EQ(thresholds.getNumberOfElements(), 4U);
    EXPECT_EQ(textOf(thresholds.serialize().get()),
              R"([{"id":"1","name":"city","thresholdIsExceeded":true,)"
              R"("uri":"/velocitythreshold/thresholds/1"},)"
              R"({"thresholdIsExceeded":false},{"name":"motorway"},{}])");

    auto const& slots = thresholds.getObjects();
    EXPECT_TRUE(slots[1]->isThresholdIsExceededSet());
    EXPECT_FALSE(slots[2]->isUriSet());
    EXPECT_FALSE(slots[3]->isThresholdIsExceededSet());
    for (auto const& each : slots) {
        EXPECT_EQ(textOf(*each, SerializationType::Shallow), textOf(*each));
        EXPECT_EQ(textOf(*each, SerializationType::Reference), '"' + each->getUri() + '"');
    }
    EXPECT_EQ(slots[0]->getUri(), "/velocitythreshold/thresholds/1");
}

TEST(Thresholds, GrowWithEveryArrayAndKeepTheSlotOfAnExtractedElement)
{
    Thresholds thresholds;
    for (std::string const& other : {std::string("{}"), std::string(R"("/a/b/1")"),
                                     std::string("7"), std::string("null"), given, given}) {
        EXPECT_TRUE(thresholds.deserialize(fromJson(other).get()));
    }
    EXPECT_EQ(thresholds.getNumberOfElements(), 8U);
    EXPECT_EQ(thresholds.extractElement(8), nullptr);
    EXPECT_FALSE(thresholds.extractElement(1)->getThresholdIsExceeded());
    EXPECT_EQ(thresholds.extractElement(1), nullptr);
    EXPECT_EQ(thresholds.getNumberOfElements(), 8U);
}

} // namespace
