// Prints how much memory this process has written, in kB: when it begins, and after the value tree
// of a small resource was read and written once. What the library of the process costs is the
// difference to the program that has none and copies the tree instead. What counts is what the
// kernel calls anonymous: the pages of a file that the process has written to, but not those that
// are dirty because the file itself is new.
//   memory         prints both
//   memory wait    and then waits for the end of the standard input, for whoever looks at many at
//   once

#include "values/values.h"

#ifdef BENCH_KIV
#include "services/radio/Presets.h"
#elif defined(BENCH_PROTOBUF)
#include "radio.pb.h"
#endif

#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using zel::dataformats::data::Array;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;

/// The sum of one line of the kernel's account of this process, in kB.
int kilobytes(std::string const& name)
{
    std::ifstream account("/proc/self/smaps_rollup");
    for (std::string word; account >> word;) {
        int value = 0;
        if (word == name && account >> value) {
            return value;
        }
    }
    throw std::runtime_error("memory: /proc/self/smaps_rollup has no " + name);
}

std::unique_ptr<Array> document()
{
    auto preset = std::make_unique<Object>();
    preset->setNew("id", new String("1"));
    preset->setNew("position", new Integer(1));
    preset->setNew("uri", new String("/radio/presets/1"));
    auto array = std::make_unique<Array>();
    array->pushNew(preset.release());
    return array;
}

void roundTrip()
{
    std::unique_ptr<Array> const in = document();
#ifdef BENCH_KIV
    zel::kiv::common::radio::Presets presets;
    presets.deserialize(in.get());
    std::unique_ptr<Value> const out = presets.serialize();
#elif defined(BENCH_PROTOBUF)
    peer::RadioPresets presets;
    auto& preset = *presets.add_objects();
    preset.set_id("1");
    preset.set_position(1);
    preset.set_uri("/radio/presets/1");
    peer::RadioPresets again;
    if (!again.ParseFromString(presets.SerializeAsString())) {
        throw std::logic_error("memory: protobuf cannot read its own bytes");
    }
#else
    std::unique_ptr<Value> const out(in->clone());
#endif
}

} // namespace

int main(int count, char** /*arguments*/)
try {
    int const before = kilobytes("Anonymous:");
    roundTrip();
    int const after = kilobytes("Anonymous:");
    std::cout << before << ' ' << after << std::endl;
    if (count > 1) {
        std::string line;
        std::getline(std::cin, line);
    }
    return 0;
} catch (std::exception const& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
}
