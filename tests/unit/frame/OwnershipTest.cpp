#include <gtest/gtest.h>

#include "Forms.h"
#include "tests/unit/platform/Allocations.h"

#include "services/door/DoorSettings.h"
#include "services/guidance/DrivingContexts.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

namespace frame_test {
namespace {

namespace common = zel::kiv::common;

using Setting = common::door::DoorSettings::DoorSettingObject;
using Control = common::door::SwitchControls::SwitchControlObject;
using Station = common::radio::Stations::StationObject;

/// Whoever replaces an element holds on to the old one: the setter does not free it.
TEST(Ownership, aReplacedElementStaysAliveAndIsNobodys)
{
    std::size_t const before = allocations::alive();
    {
        Setting setting;
        auto first = std::make_unique<Control>();
        first->setName("the first");
        setting.setDoorOpening(std::move(first));
        std::unique_ptr<Control> const old(setting.getDoorOpening());
        setting.setDoorOpening(std::make_unique<Control>());
        EXPECT_NE(setting.getDoorOpening(), old.get());
        EXPECT_EQ(old->getName(), "the first");

        common::radio::Presets::PresetObject preset;
        preset.setStation(std::make_unique<Station>());
        std::unique_ptr<common::IObjectBase> const station(preset.getStation());
        preset.setStation(std::make_unique<common::ExternalResourceObject>());
        EXPECT_EQ(full(*station), "{}");
        EXPECT_FALSE(preset.isRadioStationsStationObjectStationSet());
        EXPECT_TRUE(preset.isExternalResourceObjectStationSet());

        // Reading replaces in the same way.
        std::unique_ptr<Control> const second(setting.getDoorOpening());
        setting.deserialize(model::valueOf({Map{{"doorOpening", {7}}}}).get());
        EXPECT_NE(setting.getDoorOpening(), second.get());
    }
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Ownership, nullIsSetLikeAnElement)
{
    Setting setting;
    setting.setDoorOpening(nullptr);
    EXPECT_TRUE(setting.isDoorOpeningSet());
    EXPECT_EQ(setting.getDoorOpening(), nullptr);
    EXPECT_EQ(reference(setting), R"("")");
    Station station;
    station.addBands(nullptr);
    EXPECT_TRUE(station.isBandsSet());
    EXPECT_EQ(station.getBands().size(), 1U);
    common::radio::Presets::PresetObject preset;
    preset.setStation(std::unique_ptr<Station>());
    EXPECT_TRUE(preset.isRadioStationsStationObjectStationSet());
}

TEST(Ownership, everythingHeldIsFreed)
{
    Tree const reference = text("/a/b/c and far too long for a string to keep it in place");
    Tree const station{Map{{"bands", {List{reference, reference}}},
                           {"images", {List{reference}}},
                           {"phonetics", reference},
                           {"substations", {List{{Map{{"audioSegment", reference}}}}}},
                           {"uri", text("/radio/stations/1")}}};
    std::size_t const before = allocations::alive();
    {
        auto const presets = read<common::radio::Presets>(
            {List{{Map{{"station", station}}}, {Map{{"station", reference}}}, nothing}});
        auto const taken = presets->extractElement(0);
        auto const context = read<common::guidance::DrivingContexts::DrivingContextObject>(
            {Map{{"areaEvents", {List{reference, reference}}}}});
        EXPECT_NE(full(*taken), "{}");
        EXPECT_NE(full(*context), "{}");
    }
    EXPECT_EQ(allocations::alive(), before);
}

/// Adds elements with the memory for one of the allocations missing, until none is left to fail.
/// The element that cannot be kept is freed, and those before it are there.
TEST(Ownership, aListThatCannotGrowLosesNothing)
{
    std::size_t const before = allocations::alive();
    std::size_t failures = 0;
    for (std::size_t success = 0;; ++success) {
        Station station;
        common::radio::Stations stations;
        int added = 0;
        allocations::failAfter(success);
        try {
            for (; added < 9; ++added) {
                station.addSubstations(std::make_unique<Station>());
                stations.addObject(std::make_unique<Station>());
                station.addImages("far too long for a string to keep it in place");
            }
        } catch (std::bad_alloc const&) {
            ++failures;
        }
        bool const failed = allocations::stopFailing();
        auto const atLeast = static_cast<std::size_t>(added);
        EXPECT_GE(station.getSubstations().size(), atLeast);
        EXPECT_LE(station.getSubstations().size(), atLeast + 1);
        EXPECT_GE(stations.getNumberOfElements(), atLeast);
        EXPECT_EQ(station.getImages().size(), atLeast);
        EXPECT_EQ(station.isSubstationsSet(), !station.getSubstations().empty());
        EXPECT_EQ(station.isImagesSet(), added > 0);
        if (!failed) {
            break;
        }
    }
    EXPECT_GT(failures, 30U);
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Ownership, getterOfAListGivesACopy)
{
    auto const station =
        read<Station>({Map{{"images", {List{text("a")}}}, {"bands", {List{{7}}}}}});
    auto images = station->getImages();
    images.clear();
    auto bands = station->getBands();
    bands.clear();
    EXPECT_EQ(full(*station), R"({"bands":[{}],"images":["a"]})");
    EXPECT_EQ(station->getBands(), station->getBands()) << "the same elements each time";
}

} // namespace
} // namespace frame_test
