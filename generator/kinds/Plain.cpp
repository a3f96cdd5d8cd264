#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

namespace kivgen::kinds {

namespace {

Accessor setterOf(Field const& field, std::string_view parameter)
{
    return {Purpose::Set,
            "void",
            setterName(field.key),
            std::string(parameter),
            memberOf(field) + " = value;\n" + flagOf(field) + " = true;",
            {}};
}

Accessor adderOf(Field const& field, std::string_view parameter)
{
    return {Purpose::Add,
            "void",
            adderName(field.key),
            std::string(parameter),
            memberOf(field) + ".push_back(value);\n" + flagOf(field) + " = true;",
            {}};
}

} // namespace

FieldCode plainCode(Field const& field)
{
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    bool const isList = zel::kiv::catalogue::isList(field.kind);
    Accessor const accept =
        isList ? adderOf(field, traits.parameter) : setterOf(field, traits.parameter);
    std::string const word = enumeratorOf(field.kind);
    FieldCode code;
    code.accessors = {{Purpose::Get,
                       std::string(traits.result),
                       getterName(field.key),
                       "",
                       "return " + memberOf(field) + ';',
                       {}},
                      accept,
                      presenceOf(field)};
    code.members = {declared(field, traits.stored), "bool " + flagOf(field) + " = false;"};
    code.flags = {flagOf(field)};
    code.write = writeStep(field, word);
    code.read = wrapped("fields.read" + word + "(",
                        {'"' + field.key + '"', "&Element::" + accept.name}, ",", ");");
    return code;
}

} // namespace kivgen::kinds
