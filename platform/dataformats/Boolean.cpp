#include "values/Boolean.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

Boolean::Boolean(bool value) noexcept : m_value{value} {}

Boolean::~Boolean() = default;

void Boolean::accept(ConstVisitor& visitor) const
{
    visitor.visitBoolean(m_value);
}

char const* Boolean::typeName() const noexcept
{
    return "Boolean";
}

std::int32_t Boolean::getType() const
{
    return ValueType::Boolean;
}

Boolean* Boolean::clone() const
{
    return new Boolean{m_value};
}

bool Boolean::get() const noexcept
{
    return m_value;
}

} // namespace zel::dataformats::data
