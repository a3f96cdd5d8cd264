#include "tools/kiv/check/Reading.h"

#include "frame/IObjectBase.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kiv {

namespace {

using catalogue::Content;
using catalogue::Kind;
using data::ValueType;

std::string numberText(double number)
{
    std::array<char, 32> buffer{};
    auto const result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

/// Long texts are cut: the finding names the place, so nobody needs all of it.
std::string quoted(std::string const& text)
{
    constexpr std::size_t most = 40;
    return text.size() <= most ? '"' + text + '"' : '"' + text.substr(0, most) + "…\"";
}

Fit fitOfInt(data::Value const& value)
{
    if (value.getType() == ValueType::Integer) {
        return Fit::Exact;
    }
    if (value.getType() != ValueType::Float) {
        return Fit::Other;
    }
    data::Ref const ref(&value);
    bool const same = static_cast<double>(ref.asInteger()) == ref.asFloat();
    return same ? Fit::Rounded : Fit::Other;
}

Fit exactIf(bool fits)
{
    return fits ? Fit::Exact : Fit::Other;
}

} // namespace

Fit fitOf(Kind kind, data::Value const& value)
{
    auto const type = value.getType();
    switch (traitsOf(kind).content) {
    case Content::String:
        return exactIf(type == ValueType::String);
    case Content::Boolean:
        return exactIf(type == ValueType::Boolean);
    case Content::Float:
        return exactIf(type == ValueType::Integer || type == ValueType::Float);
    case Content::Integer:
        return fitOfInt(value);
    case Content::Object:
        break;
    }
    return Fit::Exact;
}

std::string readAs(Kind kind, data::Value const& value)
{
    data::Ref const ref(&value);
    switch (traitsOf(kind).content) {
    case Content::String:
        return quoted(ref.asString());
    case Content::Boolean:
        return ref.asBoolean() ? "true" : "false";
    case Content::Float:
        return numberText(ref.asFloat());
    case Content::Integer:
        return std::to_string(ref.asInteger());
    case Content::Object:
        break;
    }
    return {};
}

std::string serviceAndResourceOf(data::Value const& value)
{
    data::Object temporary;
    data::Object* object = &temporary;
    // The library's operation takes a value that may be written to, and writes nothing.
    common::IObjectBase::normalizeObject(const_cast<data::Value&>(value), object);
    return common::IObjectBase::getServiceAndResourceString(*object);
}

std::string const& textOf(data::Value const& value)
{
    return static_cast<data::String const&>(value).get();
}

} // namespace kiv
