#include "tests/model/Text.h"

#include "values/values.h"

#include <array>
#include <charconv>

namespace model {

namespace data = zel::dataformats::data;

namespace {

template <typename Type>
auto& as(data::Value const& value)
{
    // The getter of an array is not const, though it changes nothing.
    return const_cast<Type&>(static_cast<Type const&>(value));
}

} // namespace

std::string textOf(bool flag)
{
    return flag ? "true" : "false";
}

std::string textOf(int number)
{
    return std::to_string(number);
}

std::string textOf(double number)
{
    std::array<char, 32> buffer{};
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    std::string const text(buffer.data(), end);
    return text.find_first_of(".en") == std::string::npos ? text + ".0" : text;
}

std::string textOf(std::string const& text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (char const each : text) {
        auto const code = static_cast<unsigned char>(each);
        if (each == '"' || each == '\\') {
            result += {'\\', each};
        } else if (code >= 0x20 && code < 0x7f) {
            result += each;
        } else {
            result += {'\\', 'x', digits[code / 16], digits[code % 16]};
        }
    }
    return result + '"';
}

std::string textOf(data::Value const* value)
{
    std::string text;
    switch (value == nullptr ? data::ValueType::Null : value->getType()) {
    case data::ValueType::Boolean:
        return textOf(as<data::Boolean>(*value).get());
    case data::ValueType::Integer:
        return textOf(as<data::Integer>(*value).get());
    case data::ValueType::Float:
        return textOf(as<data::Float>(*value).get());
    case data::ValueType::String:
        return textOf(as<data::String>(*value).get());
    case data::ValueType::Array:
        for (data::Value const* const entry : as<data::Array>(*value).get()) {
            text += (text.empty() ? "" : ",") + textOf(entry);
        }
        return '[' + text + ']';
    case data::ValueType::Object:
        for (auto const& [key, held] : as<data::Object>(*value).get()) {
            text += (text.empty() ? "" : ",") + textOf(key) + ':' +
                    textOf(static_cast<data::Value const*>(held));
        }
        return '{' + text + '}';
    default:
        return value == nullptr ? "null" : value->typeName();
    }
}

std::string textOf(zel::kiv::common::IObjectBase const& element,
                   zel::kiv::common::SerializationType type)
{
    return textOf(element.serialize(type).get());
}

std::string nameOf(zel::kiv::catalogue::Resource const& resource)
{
    return std::string(resource.service) + '/' + std::string(resource.resourceKey);
}

} // namespace model
