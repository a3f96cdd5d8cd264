#include "catalogue/Suggestion.h"
#include "generator/Naming.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace {

using zel::kiv::catalogue::didYouMean;
using zel::kiv::catalogue::nearest;
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

TEST(Naming, FollowsKeysLetterForLetter)
{
    using namespace kivgen;
    EXPECT_EQ(stemOf("zLevel"), "ZLevel");
    EXPECT_EQ(stemOf("SPINhash"), "SPINhash");
    EXPECT_EQ(lowered("PresetObject"), "presetObject");
    EXPECT_EQ(getterName("delete"), "getDelete");
    EXPECT_EQ(presenceName("station", {"radio", "Stations"}, "StationObject"),
              "isRadioStationsStationObjectStationSet");
    EXPECT_EQ(presenceName("station", {}, {}), "isExternalResourceObjectStationSet");
    for (auto const* const word : {"alignas", "delete", "operator", "xor_eq"}) {
        EXPECT_TRUE(isCppKeyword(word)) << word;
    }
    EXPECT_FALSE(isCppKeyword("time"));
}

TEST(Naming, GivesTheAccessorsOfAKind)
{
    using namespace kivgen;
    Interface const interface {
        {
            {
                "radio", "Stations", "StationObject", "", "", "", {}, {}
            }
        }
    };
    auto const namesOf = [&](Kind kind, std::vector<Target> targets) {
        return accessorNames({"logo", kind, std::move(targets), {}}, interface);
    };
    EXPECT_EQ(namesOf(Kind::Bool, {}), (Words{"getLogo", "setLogo", "isLogoSet"}));
    EXPECT_EQ(namesOf(Kind::ExternalList, {{}}), (Words{"getLogo", "addLogo", "isLogoSet"}));
    EXPECT_EQ(namesOf(Kind::Polymorphic, {{"radio", "Stations"}, {"radio", "Unknown"}, {}}),
              (Words{"getLogo", "setLogo", "isRadioStationsStationObjectLogoSet",
                     "isExternalResourceObjectLogoSet"}));
}

} // namespace
