#include "values/Float.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

Float::Float(double value) noexcept : m_value{value} {}

Float::~Float() = default;

void Float::accept(ConstVisitor& visitor) const
{
    visitor.visitFloat(m_value);
}

char const* Float::typeName() const noexcept
{
    return "Float";
}

std::int32_t Float::getType() const
{
    return ValueType::Float;
}

Float* Float::clone() const
{
    return new Float{m_value};
}

double Float::get() const noexcept
{
    return m_value;
}

} // namespace zel::dataformats::data
