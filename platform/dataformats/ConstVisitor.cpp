#include "values/ConstVisitor.h"

#include "values/Value.h"

namespace zel::dataformats::data {

ConstVisitor::~ConstVisitor() = default;

// Both calls are the last thing done, and are jumps in optimised code: a visit costs no stack
// beyond that of the operation it reaches.
void ConstVisitor::visit(Value const* value)
{
    if (value == nullptr) {
        visitNull();
        return;
    }
    value->accept(*this);
}

} // namespace zel::dataformats::data
