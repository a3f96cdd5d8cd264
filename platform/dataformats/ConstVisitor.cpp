#include "values/ConstVisitor.h"

#include "values/Value.h"

namespace zel::dataformats::data {

ConstVisitor::~ConstVisitor() = default;

void ConstVisitor::visit(Value const* value)
{
    if (value == nullptr) {
        visitNull();
        return;
    }
    value->accept(*this);
}

} // namespace zel::dataformats::data
