#include "services/radio/Presets.h"
#include "services/radio/Stations.h"
#include "services/time/Clocks.h"
#include "tests/unit/platform/Allocations.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// The golden classes at work. They have every kind of field, and all others are made like them.
namespace {

using namespace zel::kiv::common;
using zel::dataformats::data::Object;
using Presets = radio::Presets;
using Preset = Presets::PresetObject;
using Station = radio::Stations::StationObject;
using Clock = time::Clocks::ClockObject;
using IsSet = bool (Preset::*)() const;

std::string keysOf(Preset const& preset)
{
    std::string keys;
    auto const value = preset.serialize(SerializationType::Full);
    for (auto const& entry : static_cast<Object const&>(*value).get()) {
        keys += entry.first + ' ';
    }
    return keys;
}

/// A plain field whose getter gives `Got` and whose setter or adder takes `Given`.
template <typename Got, typename Given>
void expectPlain(std::string const& key, Got (Preset::*get)() const, void (Preset::*give)(Given),
                 IsSet isSet, std::remove_cvref_t<Given> const& sample)
{
    SCOPED_TRACE(key);
    using Held = std::remove_cvref_t<Got>;
    Preset preset;
    EXPECT_FALSE((preset.*isSet)());
    EXPECT_EQ((preset.*get)(), Held{});
    (preset.*give)(sample);
    (preset.*give)({}); // the zero value too is set
    EXPECT_TRUE((preset.*isSet)());
    if constexpr (std::is_same_v<Held, std::remove_cvref_t<Given>>) {
        EXPECT_EQ((preset.*get)(), Held{});
        (preset.*give)(sample);
        EXPECT_EQ((preset.*get)(), sample);
    } else {
        EXPECT_EQ((preset.*get)(), (Held{sample, {}}));
    }
    EXPECT_EQ(keysOf(preset), key + ' ');
}

/// A field of elements `T`, alone or in a list.
template <typename Got, typename T>
void expectNested(std::string const& key, Got (Preset::*get)() const,
                  void (Preset::*give)(std::unique_ptr<T>), IsSet isSet)
{
    SCOPED_TRACE(key);
    std::size_t const before = allocations::alive();
    {
        Preset preset;
        EXPECT_FALSE((preset.*isSet)());
        EXPECT_EQ((preset.*get)(), Got{});
        T* const first = std::make_unique<T>().release();
        (preset.*give)(std::unique_ptr<T>(first));
        EXPECT_TRUE((preset.*isSet)());
        if constexpr (std::is_pointer_v<Got>) {
            EXPECT_EQ((preset.*get)(), first);
        } else {
            T* const second = std::make_unique<T>().release();
            (preset.*give)(std::unique_ptr<T>(second));
            EXPECT_EQ((preset.*get)(), (Got{first, second}));
        }
        EXPECT_EQ(keysOf(preset), key + ' ');
    }
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Golden, AccessorsHaveTheirTypesAndServeTheirOwnFieldAlone)
{
    using Text = std::string const&;
    using External = ExternalResourceObject;
    expectPlain<Text, Text>("SPIN", &Preset::getSPIN, &Preset::setSPIN, &Preset::isSPINSet, "a");
    expectPlain<Text, Text>("operator", &Preset::getOperator, &Preset::setOperator,
                            &Preset::isOperatorSet, "a");
    expectPlain<int, int>("count", &Preset::getCount, &Preset::setCount, &Preset::isCountSet, 7);
    expectPlain<double, double>("level", &Preset::getLevel, &Preset::setLevel, &Preset::isLevelSet,
                                0.5);
    expectPlain<bool, bool>("delete", &Preset::getDelete, &Preset::setDelete, &Preset::isDeleteSet,
                            true);
    expectPlain<std::vector<std::string>, Text>(
        "countries", &Preset::getCountries, &Preset::addCountries, &Preset::isCountriesSet, "a");
    expectPlain<std::vector<int>, int>("frequencies", &Preset::getFrequencies,
                                       &Preset::addFrequencies, &Preset::isFrequenciesSet, 7);
    expectNested<Preset*, Preset>("next", &Preset::getNext, &Preset::setNext, &Preset::isNextSet);
    expectNested<External*, External>("origin", &Preset::getOrigin, &Preset::setOrigin,
                                      &Preset::isOriginSet);
    expectNested<std::vector<External*>, External>("origins", &Preset::getOrigins,
                                                   &Preset::addOrigins, &Preset::isOriginsSet);
    expectNested<std::vector<Station*>, Station>("stations", &Preset::getStations,
                                                 &Preset::addStations, &Preset::isStationsSet);
    expectNested<IObjectBase*, Clock>("reference", &Preset::getReference, &Preset::setReference,
                                      &Preset::isTimeClocksClockObjectReferenceSet);
    expectNested<IObjectBase*, External>("reference", &Preset::getReference, &Preset::setReference,
                                         &Preset::isExternalResourceObjectReferenceSet);
    expectNested<IObjectBase*, Preset>("reference", &Preset::getReference, &Preset::setReference,
                                       &Preset::isRadioPresetsPresetObjectReferenceSet);
}

/// The members as a compiler lays out those of a plain class.
struct Layout {
    void* table;
    std::string key, SPIN;
    bool isSPINSet;
    int count;
    bool isCountSet;
    std::vector<std::string> countries;
    bool isCountriesSet, delete_, isDeleteSet;
    std::vector<int> frequencies;
    bool areFrequenciesSet;
    std::string id;
    bool isIdSet;
    double level;
    bool isLevelSet;
    std::string name;
    bool isNameSet;
    Preset* next;
    bool isNextSet;
    std::string operator_;
    bool isOperatorSet;
    ExternalResourceObject* origin;
    bool isOriginSet;
    std::vector<ExternalResourceObject*> origins;
    bool areOriginsSet;
    IObjectBase* reference;
    bool isClock, isExternal, isPreset;
    std::vector<Station*> stations;
    bool areStationsSet;
    std::string uri;
    bool isUriSet;
};

TEST(Golden, MembersStandInTheOrderOfTheirKeysBehindTheKeyOfTheClass)
{
    static_assert(sizeof(Preset) == sizeof(Layout));
    static_assert(!std::is_copy_constructible_v<Preset> && !std::is_move_assignable_v<Preset>);
    Preset preset;
    auto const& layout = reinterpret_cast<Layout const&>(preset);
    EXPECT_EQ(layout.key, "Preset");
    preset.setDelete(true);
    EXPECT_TRUE(layout.delete_ && layout.isDeleteSet && !layout.isCountriesSet);
    preset.setLevel(0.5);
    EXPECT_TRUE(layout.level == 0.5 && layout.isLevelSet);
    preset.setReference(std::make_unique<Clock>());
    std::unique_ptr<IObjectBase> const replaced(preset.getReference());
    EXPECT_TRUE(layout.isClock && !layout.isExternal && !layout.isPreset);
    preset.setReference(std::make_unique<ExternalResourceObject>());
    EXPECT_TRUE(layout.reference != nullptr && !layout.isClock && layout.isExternal);
    preset.setUri("/a");
    EXPECT_TRUE(layout.uri == "/a" && layout.isUriSet && !layout.areStationsSet);

    struct Collection {
        void* table;
        std::string key;
        std::vector<std::unique_ptr<Preset>> slots;
    };
    static_assert(sizeof(Presets) == sizeof(Collection));
    Presets const presets;
    EXPECT_EQ(reinterpret_cast<Collection const&>(presets).key, "PRESETS");
}

TEST(Golden, ResourceKeepsAndHandsOverItsElements)
{
    Presets presets;
    presets.addObject(std::make_unique<Preset>());
    auto second = std::make_unique<Preset>();
    Preset const* const raw = second.get();
    presets.addObject(std::move(second));
    EXPECT_EQ(presets.extractElement(2), nullptr);
    EXPECT_EQ(presets.extractElement(1).get(), raw);
    EXPECT_EQ(presets.extractElement(1), nullptr);
    EXPECT_EQ(presets.getNumberOfElements(), 2U);
    std::vector<std::unique_ptr<Preset>> const& slots = presets.getObjects();
    EXPECT_TRUE(slots[0] != nullptr && slots[1] == nullptr);
}

} // namespace
