// A client of the shipped library that does what is asked for: program WHAT

#include "services/radio/Collections.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

using namespace zel::kiv::common;
using namespace zel::dataformats::data;

namespace {

/// Three entries, in each of which a key nobody knows and a position that is text.
std::unique_ptr<Array> bent()
{
    auto array = std::make_unique<Array>();
    for (int i = 0; i < 3; ++i) {
        auto* const entry = new Object;
        entry->setNew("co\nlour", new Integer(1));
        entry->setNew("position", new String("2"));
        entry->setNew("station", new String("/radio/station/7"));
        array->pushNew(entry);
    }
    return array;
}

void read()
{
    radio::Presets().deserialize(bent().get());
}

template <typename Target>
void tryToRead(Target target, Value const* value)
{
    try {
        target.deserialize(value);
    } catch (std::exception const&) {
        std::cout << "refused\n";
    }
}

/// What some platforms refuse, each after the other has ended.
void readRefused()
{
    tryToRead(radio::Presets(), bent().get());
    auto* const station = new Object;
    station->setNew("uri", new String("/radio/stations/7"));
    station->setNew("name", new Integer(5));
    Object preset;
    preset.setNew("station", station);
    tryToRead(radio::Presets::PresetObject(), &preset);
    Array null;
    null.pushNew(nullptr);
    tryToRead(radio::Presets(), &null);
    Object odd;
    odd.setNew("co\nlour", new Integer(1));
    tryToRead(radio::Presets::PresetObject(), &odd);
}

void readAtOnce()
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([] {
            for (int j = 0; j < 100; ++j) {
                read();
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
}

/// Two findings more than are told one by one.
void readMany()
{
    Object preset;
    for (int i = 0; i < 10'002; ++i) {
        preset.setNew(std::to_string(i).c_str(), new Integer(i));
    }
    radio::Presets::PresetObject().deserialize(&preset);
}

void writeNullSlot()
{
    radio::Presets presets;
    presets.addObject(nullptr);
    static_cast<void>(presets.serialize());
}

void writeNullElement()
{
    radio::Presets::PresetObject preset;
    preset.setStation(std::unique_ptr<radio::Stations::StationObject>());
    static_cast<void>(preset.serialize(SerializationType::Full));
}

void readUriOfNumber()
{
    auto* const station = new Object;
    station->setNew("uri", new Integer(5));
    Object preset;
    preset.setNew("station", station);
    radio::Presets::PresetObject().deserialize(&preset);
}

void writeWithoutUri()
{
    radio::Presets::PresetObject preset;
    preset.setStation(std::make_unique<radio::Stations::StationObject>());
    static_cast<void>(preset.serialize(SerializationType::Shallow));
    radio::Stations::StationObject station;
    station.addBands(std::make_unique<radio::Bands::BandObject>());
    station.addCategory(std::make_unique<radio::Categories::CategoryObject>());
    static_cast<void>(station.serialize(SerializationType::Shallow));
}

} // namespace

int main(int, char** arguments)
{
    std::string const what = arguments[1];
    if (what == "threads") {
        readAtOnce();
    } else if (what == "refused") {
        readRefused();
    } else if (what == "many") {
        readMany();
    } else if (what == "slot") {
        writeNullSlot();
    } else if (what == "element") {
        writeNullElement();
    } else if (what == "uri") {
        readUriOfNumber();
    } else if (what == "shallow") {
        writeWithoutUri();
    } else {
        read();
    }
    if (what.rfind("signal", 0) == 0) {
        std::raise(std::stoi(what.substr(6)));
    }
    std::cout << "done\n";
    return what == "exit3" ? 3 : 0;
}
