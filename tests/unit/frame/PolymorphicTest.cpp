#include <gtest/gtest.h>

#include "Forms.h"

#include "services/emergencywarning/Notifications.h"
#include "services/guidance/Notifications.h"
#include "services/radio/Listiterators.h"
#include "services/radio/Presets.h"

namespace frame_test {
namespace {

namespace common = zel::kiv::common;

using Preset = common::radio::Presets::PresetObject;
using Iterator = common::radio::Listiterators::ListiteratorObject;
using Station = common::radio::Stations::StationObject;

/// What the preset's flags say of its station.
std::string stationOf(Tree const& given)
{
    auto const preset = read<Preset>({Map{{"station", given}}});
    bool const isStation = preset->isRadioStationsStationObjectStationSet();
    bool const isExternal = preset->isExternalResourceObjectStationSet();
    EXPECT_FALSE(isStation && isExternal);
    EXPECT_EQ(preset->getStation() != nullptr, isStation || isExternal);
    EXPECT_EQ(dynamic_cast<Station*>(preset->getStation()) != nullptr, isStation);
    return isStation ? "station" : isExternal ? "external" : "nothing";
}

TEST(Polymorphic, lastResortTakesWhatHasTwoPartsAndNoClass)
{
    EXPECT_EQ(stationOf(text("/radio/stations/7")), "station");
    EXPECT_EQ(stationOf({Map{{"pi", {1}}, {"uri", text("/radio/stations/7")}}}), "station");
    for (char const* const uri : {"/media/files/7", "radio/stations/7", "/radio/presets/1",
                                  "/Radio/stations/7", "/televisioncontent/stations/7"}) {
        EXPECT_EQ(stationOf(text(uri)), "external") << uri;
    }
    for (Tree const& other : {text("/radio/stations"), text(""), Tree{7}, Tree{List{}},
                              Tree{Map{{"pi", {1}}, {"id", text("7")}}}, nothing}) {
        EXPECT_EQ(stationOf(other), "nothing") << model::describe(other);
    }
}

TEST(Polymorphic, withoutLastResortTheRestIsDropped)
{
    auto const iterator = read<Iterator>(
        {Map{{"nextItem", text("/media/files/7")}, {"prevItem", text("/radio/presets/3")}}});
    EXPECT_EQ(iterator->getNextItem(), nullptr);
    EXPECT_TRUE(iterator->isRadioPresetsPresetObjectPrevItemSet());
    EXPECT_EQ(full(*iterator), R"({"prevItem":{"id":"3","uri":"/radio/presets/3"}})");

    // What is there stays when a later value selects nothing.
    iterator->deserialize(model::valueOf({Map{{"prevItem", text("/media/files/7")}}}).get());
    EXPECT_EQ(shallow(*iterator), R"({"prevItem":"/radio/presets/3"})");

    // One dispatch in the other.
    Tree const station{Map{{"pi", {9}}, {"uri", text("/radio/stations/1")}}};
    Tree const preset{Map{{"station", station}, {"uri", text("/radio/presets/3")}}};
    EXPECT_EQ(full(*read<Iterator>({Map{{"nextItem", preset}}})),
              R"({"nextItem":{"station":{"pi":9,"uri":"/radio/stations/1"},)"
              R"("uri":"/radio/presets/3"}})");
}

TEST(Polymorphic, theServiceTellsResourcesOfOneNameApart)
{
    using Warning = common::emergencywarning::Notifications::NotificationObject;
    auto const radio = read<Warning>({Map{{"station", text("/radio/stations/1")}}});
    auto const television =
        read<Warning>({Map{{"station", text("/televisioncontent/stations/1")}}});
    EXPECT_TRUE(radio->isRadioStationsStationObjectStationSet());
    EXPECT_FALSE(radio->isTelevisioncontentStationsStationObjectStationSet());
    EXPECT_FALSE(television->isRadioStationsStationObjectStationSet());
    EXPECT_TRUE(television->isTelevisioncontentStationsStationObjectStationSet());
}

/// In the longest list of targets the external one stands before the last, and yet is tried last.
TEST(Polymorphic, aTargetBehindTheLastResortIsReached)
{
    using Notification = common::guidance::Notifications::NotificationObject;
    auto const about = [](char const* uri) {
        return read<Notification>({Map{{"objectUri", text(uri)}}});
    };
    auto const location = about("/places/locations/1");
    EXPECT_TRUE(location->isPlacesLocationsLocationObjectObjectUriSet());
    EXPECT_FALSE(location->isExternalResourceObjectObjectUriSet());
    EXPECT_TRUE(about("/guidance/signs/1")->isGuidanceSignsSignObjectObjectUriSet());
    EXPECT_TRUE(about("/guidance/localInformation/1")
                    ->isGuidanceLocalInformationLocalInformationObjectObjectUriSet());
    EXPECT_TRUE(about("/guidance/sectionCameras/1")
                    ->isGuidanceSectionCamerasSectionCameraObjectObjectUriSet());
    EXPECT_TRUE(about("/guidance/restrictionInformation/1")
                    ->isGuidanceRestrictionInformationRestrictionInformationObjectObjectUriSet());
    EXPECT_TRUE(about("/places/results/1")->isExternalResourceObjectObjectUriSet());

    // The flags stand behind the pointer in the order of the targets.
    Notification notification;
    auto const flagAt = [&notification](auto const& set) {
        std::string const before(reinterpret_cast<char const*>(&notification), sizeof notification);
        set();
        std::string const after(reinterpret_cast<char const*>(&notification), sizeof notification);
        for (std::size_t at = sizeof notification; at > 0; --at) {
            if (before[at - 1] == 0 && after[at - 1] == 1) {
                return at - 1;
            }
        }
        return std::size_t{0};
    };
    auto external = std::make_unique<common::ExternalResourceObject>();
    auto location2 = std::make_unique<common::places::Locations::LocationObject>();
    auto* const first = external.get();
    std::size_t const externalFlag =
        flagAt([&] { notification.setObjectUri(std::move(external)); });
    std::size_t const locationFlag =
        flagAt([&] { notification.setObjectUri(std::move(location2)); });
    EXPECT_EQ(locationFlag, externalFlag + 1);
    delete first;
}

} // namespace
} // namespace frame_test
