#include "services/radio/Presets.h"
#include "services/radio/Stations.h"
#include "testing/fromJson.h"
#include "testing/toJson.h"

#include <cstdlib>
#include <exception>
#include <iostream>

using namespace zel::kiv::common;
namespace testing = zel::kiv::testing;

// The station is of one of two classes; the presence accessors tell of which.
static std::string describe(radio::Presets::PresetObject const& preset)
{
    if (preset.isRadioStationsStationObjectStationSet()) {
        auto const& station = static_cast<radio::Stations::StationObject&>(*preset.getStation());
        return "station " + station.getId() + ' ' + station.getNameShort() + " at " +
               std::to_string(station.getFrequency());
    }
    if (preset.isExternalResourceObjectStationSet()) {
        auto const& reference = static_cast<ExternalResourceObject&>(*preset.getStation());
        return "something else, known as " + reference.getUri();
    }
    return "no station";
}

static void show(std::string const& path)
{
    radio::Presets presets;
    presets.deserialize(testing::fromJsonFile(path).get());

    for (auto const& preset : presets.getObjects()) {
        std::cout << "place " << preset->getPosition() << ": " << describe(*preset) << '\n';
        for (auto const depth :
             {SerializationType::Full, SerializationType::Shallow, SerializationType::Reference}) {
            std::cout << "  " << testing::toJson(*preset->serialize(depth)) << '\n';
        }
    }
}

int main(int argc, char** argv)
{
    try {
        show(argc > 1 ? argv[1] : "examples/presets.json");
        return EXIT_SUCCESS;
    } catch (std::exception const& fault) {
        std::cerr << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
