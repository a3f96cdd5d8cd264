#include "values/Null.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

Null::Null() noexcept = default;

Null::~Null() = default;

void Null::accept(ConstVisitor& visitor) const
{
    visitor.visitNull();
}

char const* Null::typeName() const noexcept
{
    return "Null";
}

std::int32_t Null::getType() const
{
    return ValueType::Null;
}

Null* Null::clone() const
{
    return new Null;
}

} // namespace zel::dataformats::data
