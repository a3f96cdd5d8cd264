#include "tests/model/Agreement.h"

#include "tests/model/Model.h"
#include "tests/model/Text.h"

#include "frame/IResourceBase.h"
#include "values/values.h"

#include <sanitizer/lsan_interface.h>

// There only in a program that is built with the leak sanitizer.
#pragma weak __lsan_disable
#pragma weak __lsan_enable

namespace model {

namespace {

namespace data = zel::dataformats::data;

using zel::kiv::catalogue::Resource;
using Type = zel::kiv::common::SerializationType;

/// While it lives, what is allocated may be lost.
class LeaksAllowed {
public:
    LeaksAllowed()
    {
        if (__lsan_disable != nullptr) {
            __lsan_disable();
        }
    }
    ~LeaksAllowed()
    {
        if (__lsan_enable != nullptr) {
            __lsan_enable();
        }
    }
    LeaksAllowed(LeaksAllowed const&) = delete;
    LeaksAllowed& operator=(LeaksAllowed const&) = delete;
};

std::string compared(char const* what, std::string const& expected, std::string const& got)
{
    return expected == got ? ""
                           : std::string(what) + ": expected " + expected + ", got " + got + "; ";
}

/// Gives the value to both.
template <typename Expected, typename Got>
std::string readBoth(Expected& expected, Got& got, data::Value const* value, int times)
{
    std::string found;
    for (int time = 0; time < times; ++time) {
        expected.read(value);
        found += got.deserialize(value) ? "" : "deserialize says false; ";
    }
    return found;
}

std::string ofElement(Resource const& resource, data::Value const* value, int times)
{
    Element expected(&resource);
    auto const got = resource.makeElement();
    return readBoth(expected, *got, value, times) +
           compared("full", expected.full(), textOf(*got, Type::Full)) +
           compared("shallow", expected.shallow(), textOf(*got, Type::Shallow)) +
           compared("reference", expected.reference(), textOf(*got, Type::Reference)) +
           compared("of no known type", expected.full(), textOf(*got, static_cast<Type>(3)));
}

std::string ofResource(Resource const& resource, data::Value const* value, int times)
{
    Collection expected(resource);
    auto const got = resource.makeResource();
    std::string const found = readBoth(expected, *got, value, times);
    auto const form = got->serialize();
    auto const again = resource.makeResource();
    again->deserialize(form.get());
    return found + compared("resource", expected.full(), textOf(form.get())) +
           compared("the same again", textOf(form.get()), textOf(again->serialize().get())) +
           (got->getNumberOfElements() == expected.elements().size() ? "" : "number of slots");
}

std::string ofElements(Resource const& resource, data::Value const* value, int times)
{
    if (value == nullptr || value->getType() != data::ValueType::Array) {
        return ofElement(resource, value, times);
    }
    std::string found;
    // The getter of an array is not const, though it changes nothing.
    for (data::Value const* const entry :
         const_cast<data::Array&>(static_cast<data::Array const&>(*value)).get()) {
        found += ofElement(resource, entry, times);
    }
    return found;
}

} // namespace

std::string disagreement(Resource const& resource, data::Value const* value, int times)
{
    std::string const before = textOf(value);
    std::string found = ofResource(resource, value, times);
    if (times < 2) {
        found += ofElements(resource, value, times);
    } else {
        LeaksAllowed const leaksAllowed;
        found += ofElements(resource, value, times);
    }
    return found + compared("the input stays", before, textOf(value));
}

} // namespace model
