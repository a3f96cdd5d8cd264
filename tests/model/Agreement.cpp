#include "tests/model/Agreement.h"

#include "tests/model/Model.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <sanitizer/lsan_interface.h>

// There only in a program that is built with the leak sanitizer.
#pragma weak __lsan_disable
#pragma weak __lsan_enable

namespace model {

namespace {

namespace common = zel::kiv::common;
namespace data = zel::dataformats::data;

using zel::kiv::catalogue::Resource;

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

std::string compared(char const* what, Tree const& expected,
                     std::unique_ptr<data::Value> const& got)
{
    std::string const found = difference(expected, treeOf(got.get()));
    return found.empty() ? found : what + (": " + found);
}

/// Gives the value to both.
template <typename Expected, typename Got>
std::string readBoth(Expected& expected, Got& got, data::Value const* value, int times)
{
    for (int time = 0; time < times; ++time) {
        expected.read(value);
        if (!got.deserialize(value)) {
            return "deserialize says false";
        }
    }
    return disagreement(expected, got);
}

std::string elementDisagreement(Resource const& resource, data::Value const* value, int times)
{
    Element expected(&resource);
    auto const got = resource.makeElement();
    if (times < 2) {
        return readBoth(expected, *got, value, times);
    }
    LeaksAllowed const leaksAllowed;
    return readBoth(expected, *got, value, times);
}

} // namespace

std::string disagreement(Collection const& expected, common::IResourceBase const& got)
{
    if (got.getNumberOfElements() != expected.elements().size()) {
        return "expected " + std::to_string(expected.elements().size()) + " elements, got " +
               std::to_string(got.getNumberOfElements());
    }
    return compared("resource", expected.full(), got.serialize());
}

std::string disagreement(Element const& expected, common::IObjectBase const& got)
{
    using Type = common::SerializationType;
    struct {
        char const* what;
        Tree expected;
        Type type;
    } const forms[] = {{"full", expected.full(), Type::Full},
                       {"shallow", expected.shallow(), Type::Shallow},
                       {"reference", expected.reference(), Type::Reference},
                       {"of no known type", expected.full(), static_cast<Type>(3)}};
    for (auto const& form : forms) {
        std::string found = compared(form.what, form.expected, got.serialize(form.type));
        if (!found.empty()) {
            return found;
        }
    }
    return {};
}

std::string disagreement(Resource const& resource, data::Value const* value, int times)
{
    Collection expected(resource);
    std::string found = readBoth(expected, *resource.makeResource(), value, times);
    if (!found.empty()) {
        return found;
    }
    if (value == nullptr || value->getType() != data::ValueType::Array) {
        return elementDisagreement(resource, value, times);
    }
    std::size_t index = 0;
    // The getter of an array is not const, though it changes nothing.
    for (data::Value const* const entry :
         const_cast<data::Array&>(static_cast<data::Array const&>(*value)).get()) {
        found = elementDisagreement(resource, entry, times);
        if (!found.empty()) {
            return "element " + std::to_string(index) + ", " + found;
        }
        ++index;
    }
    return {};
}

} // namespace model
