#include "examples/radio/Connection.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

#include <cstdlib>
#include <exception>
#include <iostream>

// The player: it asks the service for its presets and shows them, stores another, and shows them
// again.

using namespace zel::kiv::common;
using namespace zel::dataformats::data;

static std::string nameOf(radio::Presets::PresetObject const& preset)
{
    if (!preset.isRadioStationsStationObjectStationSet()) {
        return "no station";
    }
    return static_cast<radio::Stations::StationObject&>(*preset.getStation()).getNameShort();
}

static void ask(radio_example::Connection& service, Value const& request)
{
    service.send(request);
    std::unique_ptr<Value> answer;
    if (!service.receive(answer)) {
        throw std::runtime_error("the service has gone");
    }
    radio::Presets presets;
    presets.deserialize(answer.get());
    for (auto const& preset : presets.getObjects()) {
        std::cout << "  place " << preset->getPosition() << ": " << nameOf(*preset) << '\n';
    }
}

static void play(std::string const& path)
{
    auto service = radio_example::Connection::open(path);
    std::cout << "The presets:\n";
    ask(service, String("/radio/presets"));

    auto station = std::make_unique<radio::Stations::StationObject>();
    station->setUri("/radio/stations/104700");
    station->setNameShort("Jazz");
    radio::Presets::PresetObject preset;
    preset.setPosition(3);
    preset.setStation(std::move(station));
    std::cout << "With another one stored:\n";
    ask(service, *preset.serialize(SerializationType::Full));
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "radio-player SOCKET\n";
        return EXIT_FAILURE;
    }
    try {
        play(argv[1]);
        return EXIT_SUCCESS;
    } catch (std::exception const& fault) {
        std::cerr << "radio-player: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
