#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

#include "frame/ElementStatus.h"

#include <iostream>
#include <memory>
#include <utility>

// What somebody writes who has nothing but the packages: fills, writes out, reads back.

using zel::kiv::common::ELEMENTSTATUSANDSTRINGMAP;
using zel::kiv::common::radio::Presets;
using zel::kiv::common::radio::Stations;

int main()
{
    auto station = std::make_unique<Stations::StationObject>();
    station->setUri("/radio/stations/7");
    auto preset = std::make_unique<Presets::PresetObject>();
    preset->setPosition(3);
    preset->setStation(std::move(station));

    Presets presets;
    presets.addObject(std::move(preset));
    auto const tree = presets.serialize();

    Presets back;
    back.deserialize(tree.get());
    auto const& read = *back.getObjects().front();
    bool const isRight = read.getPosition() == 3 && read.isRadioStationsStationObjectStationSet() &&
                         ELEMENTSTATUSANDSTRINGMAP.size() == 8;
    std::cout << (isRight ? "consumer: all as it should be\n" : "consumer: something is lost\n");
    return isRight ? 0 : 1;
}
