#include "values/Ref.h"

#include "numbers.h"
#include "values/Boolean.h"
#include "values/Float.h"
#include "values/Integer.h"
#include "values/String.h"

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

} // namespace

std::string Ref::asString() const
{
    switch (typeOf(m_value)) {
    case ValueType::Boolean:
        return truth(*m_value) ? "true" : "false";
    case ValueType::Integer:
        return textOf(integer(*m_value));
    case ValueType::Float:
        return textOf(real(*m_value));
    case ValueType::String:
        return text(*m_value);
    default:
        return {};
    }
}

int Ref::asInteger() const noexcept
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

double Ref::asFloat() const noexcept
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
