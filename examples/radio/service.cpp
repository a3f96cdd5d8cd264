#include "examples/radio/Connection.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

// The service: it holds the presets, and answers a player that connects. A request is a text, which
// asks for all presets, or a preset, which is added to them; each is answered with all presets.

using namespace zel::dataformats::data;
using zel::kiv::common::radio::Presets;
using zel::kiv::common::radio::Stations;

static void addPreset(Presets& presets, int position, std::string const& name, int frequency)
{
    auto station = std::make_unique<Stations::StationObject>();
    station->setUri("/radio/stations/" + std::to_string(frequency));
    station->setNameShort(name);
    station->setFrequency(frequency);
    auto preset = std::make_unique<Presets::PresetObject>();
    preset->setPosition(position);
    preset->setStation(std::move(station));
    presets.addObject(std::move(preset));
}

// As somebody would who writes values by hand: a key is misspelt, and a uri names no station.
static std::unique_ptr<Value> faultyAnswer()
{
    auto* const station = new Object;
    station->setNew("uri", new String("/radio/station/98500"));
    station->setNew("nameShort", new String("KIV"));
    auto* const preset = new Object;
    preset->setNew("positon", new Integer(1));
    preset->setNew("station", station);
    auto presets = std::make_unique<Array>();
    presets->pushNew(preset);
    return presets;
}

static void serve(std::string const& path, bool isFaulty)
{
    Presets presets;
    addPreset(presets, 1, "KIV", 98500);
    addPreset(presets, 2, "News", 102300);

    auto player = radio_example::Connection::accept(path);
    std::unique_ptr<Value> request;
    while (player.receive(request)) {
        if (request != nullptr && request->getType() == ValueType::Object) {
            auto preset = std::make_unique<Presets::PresetObject>();
            preset->deserialize(request.get());
            presets.addObject(std::move(preset));
        }
        player.send(isFaulty ? *faultyAnswer() : *presets.serialize());
    }
}

int main(int argc, char** argv)
{
    bool const isFaulty = argc == 3 && argv[2] == std::string("--faulty");
    if (argc != 2 && !isFaulty) {
        std::cerr << "radio-service SOCKET [--faulty]\n";
        return EXIT_FAILURE;
    }
    try {
        serve(argv[1], isFaulty);
        return EXIT_SUCCESS;
    } catch (std::exception const& fault) {
        std::cerr << "radio-service: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
