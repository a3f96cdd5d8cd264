#include "values/Ref.h"

#include "values/Boolean.h"
#include "values/Float.h"
#include "values/Integer.h"
#include "values/String.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace zel::dataformats::data {
namespace {

std::int32_t typeOf(Value const* value)
{
    return value == nullptr ? ValueType::Null : value->getType();
}

bool truth(Value const& value) noexcept
{
    return static_cast<Boolean const&>(value).get();
}

int integer(Value const& value) noexcept
{
    return static_cast<Integer const&>(value).get();
}

double real(Value const& value) noexcept
{
    return static_cast<Float const&>(value).get();
}

std::string const& text(Value const& value) noexcept
{
    return static_cast<String const&>(value).get();
}

/// The shortest text that reads back as the same number.
template <typename Number>
std::string textOf(Number number)
{
    std::array<char, 32> buffer{};
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr};
}

/// The number that all of the text is, held within the finite range; 0 if it is none.
double numberIn(std::string const& text)
{
    std::istringstream stream{text};
    stream.imbue(std::locale::classic());
    stream.exceptions(std::ios::badbit);
    double number = 0;
    stream >> std::noskipws >> number;
    return stream.peek() == std::istringstream::traits_type::eof() ? number : 0;
}

/// Cut toward zero and held within the range.
int toInt(double number) noexcept
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<int>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

} // namespace

std::string Ref::asString() const
{
    switch (typeOf(m_value)) {
    case ValueType::Boolean:
        return truth(*m_value) ? "true" : "false";
    case ValueType::Integer:
        return textOf(integer(*m_value));
    case ValueType::Float:
        return std::isnan(real(*m_value)) ? "nan" : textOf(real(*m_value));
    case ValueType::String:
        return text(*m_value);
    default:
        return {};
    }
}

int Ref::asInteger() const
{
    switch (typeOf(m_value)) {
    case ValueType::Boolean:
        return truth(*m_value) ? 1 : 0;
    case ValueType::Integer:
        return integer(*m_value);
    case ValueType::Float:
        return toInt(real(*m_value));
    case ValueType::String:
        return toInt(numberIn(text(*m_value)));
    default:
        return 0;
    }
}

bool Ref::asBoolean() const noexcept
{
    switch (typeOf(m_value)) {
    case ValueType::Boolean:
        return truth(*m_value);
    case ValueType::Integer:
        return integer(*m_value) != 0;
    case ValueType::Float:
        return real(*m_value) != 0;
    case ValueType::String:
        return text(*m_value) == "true";
    default:
        return false;
    }
}

double Ref::asFloat() const
{
    switch (typeOf(m_value)) {
    case ValueType::Boolean:
        return truth(*m_value) ? 1 : 0;
    case ValueType::Integer:
        return integer(*m_value);
    case ValueType::Float:
        return real(*m_value);
    case ValueType::String:
        return numberIn(text(*m_value));
    default:
        return 0;
    }
}

} // namespace zel::dataformats::data
