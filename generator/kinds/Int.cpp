#include "generator/kinds/Kinds.h"
#include "generator/kinds/Plain.h"

namespace kivgen::kinds {

namespace {

constexpr Plain number{"int", "int", "int", " = 0", "zero", "Int"};

} // namespace

FieldCode intCode(Field const& field)
{
    return plainCode(field, number);
}

FieldCode intListCode(Field const& field)
{
    return plainListCode(field, number);
}

} // namespace kivgen::kinds
