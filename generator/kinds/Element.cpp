#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

namespace kivgen::kinds {

namespace {

Accessor setterOf(Field const& field, std::string const& parameter)
{
    return {Purpose::Set,
            "void",
            setterName(field.key),
            parameter,
            memberOf(field) + " = value.release();\n" + flagOf(field) + " = true;",
            {}};
}

Accessor adderOf(Field const& field, std::string const& parameter)
{
    return {Purpose::Add,
            "void",
            adderName(field.key),
            parameter,
            "internal::append(" + memberOf(field) + ", std::move(value));\n" + flagOf(field) +
                " = true;",
            {}};
}

} // namespace

FieldCode elementCode(Field const& field, Interface const& interface)
{
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    bool const isList = zel::kiv::catalogue::isList(field.kind);
    Resource const& target = interface.at(field.targets.front());
    std::string const held = elementClassOf(target);
    std::string const parameter = typeFor(traits.parameter, held);
    Accessor const accept = isList ? adderOf(field, parameter) : setterOf(field, parameter);
    // The frame makes no difference between what is external and what is not.
    std::string const word = isList ? "ElementList" : "Element";
    FieldCode code;
    code.includes = {headerOf(target)};
    code.warning = isList ? "" : replacement;
    code.accessors = {{Purpose::Get,
                       typeFor(traits.result, held),
                       getterName(field.key),
                       "",
                       "return " + memberOf(field) + ';',
                       {}},
                      accept,
                      presenceOf(field)};
    code.members = {declared(field, typeFor(traits.stored, held)),
                    "bool " + flagOf(field) + " = false;"};
    code.flags = {flagOf(field)};
    code.release =
        std::string("internal::release") + (isList ? "All(" : "(") + memberOf(field) + ");";
    code.write = writeStep(field, word);
    // The step names the setter or adder as a template argument, unlike that of plain kinds.
    code.read = wrapped("fields.read" + word + "<&Element::" + accept.name + ">(",
                        {'"' + field.key + '"'}, ",", ");");
    return code;
}

} // namespace kivgen::kinds
