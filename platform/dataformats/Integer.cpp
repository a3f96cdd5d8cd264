#include "values/Integer.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

Integer::Integer(int value) noexcept : m_value{value} {}

Integer::~Integer() = default;

void Integer::accept(ConstVisitor& visitor) const
{
    visitor.visitInteger(m_value);
}

char const* Integer::typeName() const noexcept
{
    return "Integer";
}

std::int32_t Integer::getType() const
{
    return ValueType::Integer;
}

Integer* Integer::clone() const
{
    return new Integer{m_value};
}

int Integer::get() const noexcept
{
    return m_value;
}

} // namespace zel::dataformats::data
