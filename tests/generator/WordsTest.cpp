#include "generator/Printer.h"
#include "text/Suggestion.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using kiv::didYouMean;
using kiv::nearest;
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
    EXPECT_EQ(nearest("i", known, 5), Words{""}); // one slip is allowed in any word
    EXPECT_EQ(nearest("double", known, 5), Words{});
    EXPECT_EQ(nearest(std::string(1000, 'i'), known, 5), Words{});
}

TEST(Suggestion, PutsTheClosestFirst)
{
    std::array<std::string_view, 4> const known{"stations", "station", "stating", "stationary"};
    EXPECT_EQ(nearest("station", known, 3), (Words{"station", "stations"}));
    EXPECT_EQ(nearest("statio", known, 3), (Words{"station", "stations", "stating"}));
    EXPECT_EQ(nearest("station", known, 1), Words{"station"});
    EXPECT_EQ(didYouMean("statio", known), "; did you mean 'station' or 'stations'?");
    EXPECT_EQ(didYouMean("volume", known), "");
}

TEST(Printer, StopsAtASlotThatNothingFills)
{
    EXPECT_EQ(kivgen::fill("$a$$b$", {{"a", "1"}, {"b", ""}}), "1\n");
    EXPECT_THROW(kivgen::fill("$name$", {}), std::logic_error);
    EXPECT_THROW(kivgen::fill("costs 5$", {{"name", ""}}), std::logic_error);
}

TEST(Printer, BreaksOnlyWhereTheLineIsFullAndNoWordInTwo)
{
    std::string const monster(120, 'y');
    EXPECT_EQ(kivgen::comment(monster, 0), "/// " + monster + "\n");
    // To the last column, and one beyond it.
    std::string const rest(100 - 4 - 5 - 2, 'r');
    EXPECT_EQ(kivgen::wrapped(4, "call(", {rest}, ",", ");"), "    call(" + rest + ");\n");
    EXPECT_EQ(kivgen::wrapped(4, "call(", {rest + 'r'}, ",", ");"),
              "    call(\n        " + rest + "r);\n");
}

} // namespace
