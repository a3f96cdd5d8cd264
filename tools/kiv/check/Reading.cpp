#include "tools/kiv/check/Reading.h"

#include "frame/IObjectBase.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kiv {

namespace {

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
    switch (kind) {
    case Kind::String:
        return exactIf(type == ValueType::String);
    case Kind::Bool:
        return exactIf(type == ValueType::Boolean);
    case Kind::Double:
        return exactIf(type == ValueType::Integer || type == ValueType::Float);
    case Kind::Int:
        return fitOfInt(value);
    default:
        return Fit::Exact;
    }
}

std::string readAs(Kind kind, data::Value const& value)
{
    data::Ref const ref(&value);
    switch (kind) {
    case Kind::String:
        return quoted(ref.asString());
    case Kind::Bool:
        return ref.asBoolean() ? "true" : "false";
    case Kind::Double:
        return numberText(ref.asFloat());
    case Kind::Int:
        return std::to_string(ref.asInteger());
    default:
        return {};
    }
}

std::string_view wantedBy(Kind kind)
{
    switch (kind) {
    case Kind::String:
        return "text";
    case Kind::Bool:
        return "true or false";
    case Kind::Double:
        return "a number";
    case Kind::Int:
        return "an integer";
    case Kind::StringList:
    case Kind::IntList:
    case Kind::ElementList:
    case Kind::ExternalList:
        return "an array";
    case Kind::Element:
    case Kind::External:
    case Kind::Polymorphic:
        return "an object or a uri";
    }
    return {};
}

Kind entryKind(Kind kind)
{
    switch (kind) {
    case Kind::StringList:
        return Kind::String;
    case Kind::IntList:
        return Kind::Int;
    case Kind::ElementList:
        return Kind::Element;
    case Kind::ExternalList:
        return Kind::External;
    default:
        return kind;
    }
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
