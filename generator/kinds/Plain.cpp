#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

namespace kivgen::kinds {

namespace {

Accessor getterOf(Field const& field, bool isList)
{
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    return {Purpose::Get,
            std::string(isList ? "A copy of the list `" : "The `") + field.key + "`; " +
                std::string(traits.unset) + " while it is not set.",
            std::string(traits.result),
            getterName(field.key),
            "",
            "return " + memberOf(field) + ";\n",
            {}};
}

Accessor setterOf(Field const& field)
{
    return {Purpose::Set,
            "Sets `" + field.key + "`, whatever the value.",
            "void",
            setterName(field.key),
            std::string(zel::kiv::catalogue::traitsOf(field.kind).parameter),
            memberOf(field) + " = value;\n" + flagOf(field) + " = true;\n",
            {}};
}

Accessor adderOf(Field const& field)
{
    return {Purpose::Add,
            "Appends to the list `" + field.key + "`, which is set from then on.",
            "void",
            adderName(field.key),
            std::string(zel::kiv::catalogue::traitsOf(field.kind).parameter),
            memberOf(field) + ".push_back(value);\n" + flagOf(field) + " = true;\n",
            {}};
}

} // namespace

FieldCode plainCode(Field const& field)
{
    bool const isList = zel::kiv::catalogue::isList(field.kind);
    Accessor const accept = isList ? adderOf(field) : setterOf(field);
    std::string const word = enumeratorOf(field.kind);
    FieldCode code;
    code.accessors = {getterOf(field, isList), accept, presenceOf(field)};
    code.members = {declared(field, zel::kiv::catalogue::traitsOf(field.kind).stored),
                    "bool " + flagOf(field) + " = false;"};
    code.flags = {flagOf(field)};
    code.write = writeStep(field, word);
    code.read = wrapped(8, "fields.read" + word + "(",
                        {'"' + field.key + '"', "&Element::" + accept.name}, ",", ");");
    return code;
}

} // namespace kivgen::kinds
