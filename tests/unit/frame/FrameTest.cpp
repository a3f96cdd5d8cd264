#include "testing/fromJson.h"
#include "tests/model/Text.h"

#include "tests/unit/platform/Allocations.h"

#include "frame/ElementStatus.h"
#include "frame/ExternalResourceObject.h"
#include "services/door/DoorSettings.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

/// What a client may call or rely on and no round trip shows.
namespace {

using namespace zel::kiv::common;
using namespace zel::dataformats::data;
using model::textOf;
using zel::kiv::testing::fromJson;
using Setting = door::DoorSettings::DoorSettingObject;
using Control = door::SwitchControls::SwitchControlObject;
using Preset = radio::Presets::PresetObject;
using Station = radio::Stations::StationObject;

/// What `normalizeObject` says, whether it points elsewhere, and what it left in the object.
std::string normalized(std::string const& given)
{
    auto const value = fromJson(given);
    Object temporary;
    Object* object = &temporary;
    std::string const result = IObjectBase::normalizeObject(*value, object) ? "true" : "false";
    EXPECT_TRUE(object == value.get() || object == &temporary);
    EXPECT_EQ(textOf(value.get()), given) << "it was changed";
    return result + (object == value.get() ? " the value, " : " the temporary, ") +
           textOf(&temporary);
}

TEST(NormalizeObject, takesTextForAUriAnObjectAsItIsAndNothingElse)
{
    EXPECT_EQ(normalized(R"("/radio/stations/7")"),
              R"(true the temporary, {"id":"7","uri":"/radio/stations/7"})");
    EXPECT_EQ(normalized(R"("/radio/stations")"),
              R"(true the temporary, {"uri":"/radio/stations"})");
    EXPECT_EQ(normalized(R"("")"), R"(true the temporary, {"uri":""})");
    EXPECT_EQ(normalized(R"({"uri":"/radio/stations/7"})"), "true the value, {}");
    for (char const* const other : {"7", "1.5", "true", R"(["/radio/stations/7"])"}) {
        EXPECT_EQ(normalized(other), "false the temporary, {}");
    }
}

TEST(ServiceAndResource, isWhatStandsBeforeTheSecondSlash)
{
    std::map<std::string, std::string> const cases{
        {"/radio/stations/7", "radio/stations"},
        {"/radio/stations/", "radio/stations"},
        {"/radio/stations/7/8", "radio/stations"},
        {"radio/stations/7", "adio/stations"}, // the first character does not count, slash or not
        {"/radio/stations", ""},
        {"/", ""},
        {"", ""},
        {"//", ""},
        {"///", "/"},
        {"//radio/stations", "/radio"},
        {"/a//7", "a/"},
    };
    for (auto const& [uri, expected] : cases) {
        Object object;
        EXPECT_EQ(IObjectBase::getServiceAndResourceString(object), "");
        object.setNew("uri", new String(uri));
        EXPECT_EQ(IObjectBase::getServiceAndResourceString(object), expected) << uri;
    }
}

TEST(ExternalResource, readsItsThreeFieldsOfObjectsOnly)
{
    ExternalResourceObject object;
    for (char const* const given :
         {R"({"id":"1","name":7,"other":1,"uri":null})", R"("/a/b/2")", R"(["x"])", "7", "null"}) {
        EXPECT_TRUE(object.deserialize(fromJson(given).get()));
        EXPECT_EQ(textOf(object), R"({"id":"1","name":"7"})");
    }
    EXPECT_EQ(textOf(object, SerializationType::Reference), R"("")");
    object.setUri("/a/b/1");
    EXPECT_EQ(textOf(object, SerializationType::Reference), R"("/a/b/1")");
}

/// Whoever replaces an element holds on to the old one: the setter does not free it.
TEST(Ownership, aReplacedElementStaysAliveAndIsNobodys)
{
    std::size_t const before = allocations::alive();
    {
        Setting setting;
        setting.setDoorOpening(std::make_unique<Control>());
        std::unique_ptr<Control> const first(setting.getDoorOpening());
        first->setName("the first");
        setting.setDoorOpening(std::make_unique<Control>());
        EXPECT_NE(setting.getDoorOpening(), first.get());
        EXPECT_EQ(first->getName(), "the first");

        std::unique_ptr<Control> const second(setting.getDoorOpening());
        setting.deserialize(fromJson(R"({"doorOpening":7})").get());
        EXPECT_NE(setting.getDoorOpening(), second.get());

        Preset preset;
        preset.setStation(std::make_unique<Station>());
        std::unique_ptr<IObjectBase> const station(preset.getStation());
        preset.setStation(std::make_unique<ExternalResourceObject>());
        EXPECT_EQ(textOf(*station), "{}");
        // A value that selects nothing replaces nothing.
        preset.deserialize(fromJson(R"({"station":"/radio/stations"})").get());
        EXPECT_TRUE(preset.isExternalResourceObjectStationSet());
    }
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Ownership, nullIsSetLikeAnElement)
{
    Setting setting;
    setting.setDoorOpening(nullptr);
    EXPECT_TRUE(setting.isDoorOpeningSet());
    EXPECT_EQ(setting.getDoorOpening(), nullptr);
    Station station;
    station.addBands(nullptr);
    EXPECT_TRUE(station.isBandsSet());
    EXPECT_EQ(station.getBands().size(), 1U);
    Preset preset;
    preset.setStation(std::unique_ptr<Station>());
    EXPECT_TRUE(preset.isRadioStationsStationObjectStationSet());
    radio::Presets presets;
    presets.addObject(nullptr);
    EXPECT_EQ(presets.getNumberOfElements(), 1U);
}

/// Read while this file is initialised: the tables must be complete before any client's code runs.
std::string const earlyText = ELEMENTSTATUSANDSTRINGMAP.at(ElementStatus::Ongoing);

TEST(ElementStatus, tablesLeadToEachOther)
{
    EXPECT_EQ(earlyText, "ongoing");
    std::vector<std::string> const texts{
        "created",           "serviceReady",         "pending", "ongoing", "clientReady",
        "serviceSuccessful", "serviceNotSuccessful", "failed"};
    EXPECT_EQ(ELEMENTSTATUSANDSTRINGMAP.size(), texts.size());
    EXPECT_EQ(STRINGANDELEMENTSTATUSMAP.size(), texts.size());
    int number = 0;
    for (std::string const& each : texts) {
        auto const status = static_cast<ElementStatus>(number++);
        EXPECT_EQ(ELEMENTSTATUSANDSTRINGMAP.at(status), each);
        EXPECT_EQ(STRINGANDELEMENTSTATUSMAP.at(each), status);
    }
    // The numbers are part of the interface, the names lead to them.
    EXPECT_EQ(static_cast<int>(ElementStatus::ClientReady), 4);
    EXPECT_EQ(static_cast<int>(ElementStatus::ServiceNotSuccessful), 6);
}

} // namespace
