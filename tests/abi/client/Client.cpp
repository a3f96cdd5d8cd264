#include "frame/ElementStatus.h"
#include "frame/ExternalResourceObject.h"
#include "services/radio/Presets.h"
#include "services/radio/Stations.h"

#include <iostream>
#include <memory>
#include <typeinfo>

// A client as anybody may write it. It is built twice, with and without position-independent code:
// the second has copies of the library's data in its own.

namespace {

using namespace zel::kiv::common;
namespace data = zel::dataformats::data;

int faults = 0;

void expect(bool holds, char const* what)
{
    if (!holds) {
        std::cerr << "does not hold: " << what << '\n';
        ++faults;
    }
}

/// Static initialisation of a client comes after that of the library.
std::size_t const sizeAtStart = ELEMENTSTATUSANDSTRINGMAP.size();

void readStatusTables()
{
    expect(sizeAtStart == 8, "the texts are there when the client starts");
    expect(ELEMENTSTATUSANDSTRINGMAP.size() == 8, "eight texts");
    expect(STRINGANDELEMENTSTATUSMAP.size() == 8, "eight statuses");
    for (auto const& [status, text] : ELEMENTSTATUSANDSTRINGMAP) {
        auto const back = STRINGANDELEMENTSTATUSMAP.find(text);
        expect(back != STRINGANDELEMENTSTATUSMAP.end() && back->second == status,
               "each text leads back to its status");
    }
}

void tellClassesApart()
{
    // Made in the library, told apart here.
    data::Object document;
    document.setNew("station", new data::String("/radio/stations/7"));
    radio::Presets::PresetObject preset;
    preset.deserialize(&document);
    IObjectBase* const station = preset.getStation();
    expect(dynamic_cast<radio::Stations::StationObject*>(station) != nullptr, "a station");
    expect(dynamic_cast<ExternalResourceObject*>(station) == nullptr, "no external reference");
    expect(station != nullptr && typeid(*station) == typeid(radio::Stations::StationObject),
           "the type record of a station");

    // Made here, called through the base.
    std::unique_ptr<IResourceBase> const presets = std::make_unique<radio::Presets>();
    expect(dynamic_cast<radio::Presets*>(presets.get()) != nullptr, "presets");
    IResourceBase const& base = *presets;
    expect(typeid(base) == typeid(radio::Presets), "the type record of presets");
}

/// A client may have elements of its own.
class OwnElement : public IObjectBase {
public:
    OwnElement() : IObjectBase("ownElement") {}

    [[nodiscard]] std::unique_ptr<data::Value> serialize(SerializationType /*type*/) const override
    {
        return std::make_unique<data::Integer>(7);
    }

    bool deserialize(data::Value const* /*value*/) override { return true; }
};

void derive()
{
    std::unique_ptr<IObjectBase> const own = std::make_unique<OwnElement>();
    expect(dynamic_cast<OwnElement*>(own.get()) != nullptr, "an element of the client's");
    expect(own->serialize(SerializationType::Full)->getType() != data::ValueType::Object,
           "the client's own value form");
}

} // namespace

int main()
{
    readStatusTables();
    tellClassesApart();
    derive();
    return faults == 0 ? 0 : 1;
}
