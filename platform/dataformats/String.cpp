#include "values/String.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

// NOLINTNEXTLINE(modernize-pass-by-value): the parameter is part of the contract.
String::String(std::string const& text) : m_text{text} {}

String::~String() = default;

void String::accept(ConstVisitor& visitor) const
{
    visitor.visitString({m_text.data(), m_text.size()});
}

char const* String::typeName() const noexcept
{
    return "String";
}

std::int32_t String::getType() const
{
    return ValueType::String;
}

String* String::clone() const
{
    return new String{m_text};
}

std::string const& String::get() const noexcept
{
    return m_text;
}

} // namespace zel::dataformats::data
