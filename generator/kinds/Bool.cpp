#include "generator/kinds/Kinds.h"
#include "generator/kinds/Plain.h"

namespace kivgen::kinds {

namespace {

constexpr Plain truth{"bool", "bool", "bool", " = false", "false", "Bool"};

} // namespace

FieldCode boolCode(Field const& field)
{
    return plainCode(field, truth);
}

} // namespace kivgen::kinds
