#include "services/radio/Presets.h"
#include "testing/matchers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace zel::kiv::testing;
namespace data = zel::dataformats::data;
using testing::Not;
using zel::kiv::common::radio::Presets;

TEST(Testing, NamesThePlaceOfAFault)
{
    struct {
        char const* text;
        char const* place;
    } const cases[] = {
        {"", "1:1: "},
        {"[1,\n \"ä\" 2]", "2:6: "},
        {"[0,99999999999]", "1:15: the integer 99999999999 at [1] "},
        {R"({"a":{"b":1e999}})", "1:11: "},
        {R"({"a b":["\udc00"]})", "1:"},
        {R"({"\u0000":1})", "1:10: this key"},
        {"\"\xff\"", "1:"},
        {"[1] 2", "1:5: "},
    };
    for (auto const& [text, place] : cases) {
        try {
            fromJson(text);
            ADD_FAILURE() << text << " is taken";
        } catch (BadJson const& fault) {
            EXPECT_THAT(fault.what(), testing::StartsWith(place)) << text;
        }
    }
    EXPECT_THROW(fromJson(std::string(1001, '[')), BadJson);
    EXPECT_THROW(fromJson({"1\0", 2}), BadJson);
    EXPECT_THROW(fromJsonFile("/nowhere"), std::runtime_error);
}

TEST(Testing, NamesEachPlaceOfADifference)
{
    struct {
        char const* expected;
        char const* actual;
        char const* words;
    } const cases[] = {
        {R"({"a":[1,{}],"b":null})", R"({"b":null,"a":[1,{}]})", ""},
        {R"({"a":1,"c":"x"})", R"({"b0":[2],"c":"y"})",
         "a: nothing, but expected was 1\nb0: [2], but expected was nothing\n"
         "c: \"y\", but expected was \"x\""},
        {R"([{"a b":[true]}])", R"([{"a b":[]},1.0])",
         "[0][\"a b\"][0]: nothing, but expected was true\n[1]: 1.0, but expected was nothing"},
        {"1", "1.0", "the top: 1.0, but expected was 1"},
        {"{}", "[]", "the top: [], but expected was {}"},
    };
    for (auto const& [expected, actual, words] : cases) {
        EXPECT_EQ(difference(fromJson(expected).get(), fromJson(actual).get()), words);
    }
}

TEST(Testing, MatchesAndShowsValuesElementsAndResources)
{
    constexpr char const* text = R"([{"position":3,"station":{"uri":"/radio/stations/7"}}])";
    auto const value = fromJson(text);
    Presets presets;
    presets.deserialize(value.get());
    auto const& preset = *presets.getObjects().front();

    EXPECT_THAT(value, MatchesJson(text));
    EXPECT_THAT(*value, MatchesJson(text));
    EXPECT_THAT(presets, MatchesJson(text));
    EXPECT_THAT(preset, Not(MatchesJson("{}")));
    testing::StringMatchResultListener listener;
    EXPECT_FALSE(
        testing::ExplainMatchResult(MatchesJson(R"([{"position":3}])"), presets, &listener));
    EXPECT_THAT(listener.str(), testing::StartsWith("[0].station: "));
    EXPECT_EQ('[' + testing::PrintToString(preset) + ']', text);
    EXPECT_EQ(testing::PrintToString(presets), text);
    EXPECT_EQ(toJson(preset, Layout::Indented), "{\n    \"position\": 3,\n    \"station\": {\n"
                                                "        \"uri\": \"/radio/stations/7\"\n    }\n}");
    EXPECT_EQ(toJson(data::Float(std::nan(""))), "nan");
}
