#include "generator/kinds/Kinds.h"
#include "generator/kinds/Plain.h"

namespace kivgen::kinds {

namespace {

constexpr Plain text{"std::string", "std::string const&", "std::string const&", "", "empty",
                     "String"};

} // namespace

FieldCode stringCode(Field const& field)
{
    return plainCode(field, text);
}

FieldCode stringListCode(Field const& field)
{
    return plainListCode(field, text);
}

} // namespace kivgen::kinds
