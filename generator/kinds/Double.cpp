#include "generator/kinds/Kinds.h"
#include "generator/kinds/Plain.h"

namespace kivgen::kinds {

namespace {

constexpr Plain number{"double", "double", "double", " = 0.0", "zero", "Double"};

} // namespace

FieldCode doubleCode(Field const& field)
{
    return plainCode(field, number);
}

} // namespace kivgen::kinds
