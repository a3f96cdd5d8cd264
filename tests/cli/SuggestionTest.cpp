#include "text/Suggestion.h"

#include <gtest/gtest.h>

#include <array>

namespace kiv {
namespace {

using Words = std::vector<std::string>;

TEST(Suggestion, TakesSlipsNotOtherWords)
{
    std::array<std::string_view, 6> const known{"radio::Stations", "radio::Presets", "int",
                                                "int list",        "string",         ""};
    EXPECT_EQ(nearest("radio::Statoins", known, 5), Words{"radio::Stations"}); // swapped
    EXPECT_EQ(nearest("radio::stations", known, 5), Words{"radio::Stations"}); // changed
    EXPECT_EQ(nearest("radio::Presetss", known, 5), Words{"radio::Presets"});  // added
    EXPECT_EQ(nearest("rado::Preset", known, 5), Words{"radio::Presets"});     // dropped twice
    EXPECT_EQ(nearest("integer", known, 5), Words{"int"});                     // a beginning
    EXPECT_EQ(nearest("in", known, 5), Words{}); // anything is near a word so short
    EXPECT_EQ(nearest("double", known, 5), Words{});
    EXPECT_EQ(nearest(std::string(1000, 'i'), known, 5), Words{});
}

TEST(Suggestion, PutsTheClosestFirst)
{
    std::array<std::string_view, 3> const keys{"posixName", "nameShort", "position"};
    EXPECT_EQ(nearest("POSITION", keys, 5), Words{"position"});
    EXPECT_EQ(nearest("shortName", keys, 5), Words{"nameShort"});
    std::array<std::string_view, 4> const known{"stations", "station", "stating", "stationary"};
    EXPECT_EQ(nearest("station", known, 3), (Words{"station", "stations"}));
    EXPECT_EQ(nearest("statio", known, 3), (Words{"station", "stations", "stating"}));
    EXPECT_EQ(nearest("station", known, 1), Words{"station"});
    EXPECT_EQ(didYouMean("statio", known), "; did you mean 'station' or 'stations'?");
    EXPECT_EQ(didYouMean("volume", known), "");
}

} // namespace
} // namespace kiv
