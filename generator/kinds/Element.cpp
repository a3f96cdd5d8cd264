#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

namespace kivgen::kinds {

namespace {

/// The C++ types of the field's kind with the class that it holds in them.
struct Types {
    std::string stored;
    std::string result;
    std::string parameter;
};

Types typesOf(Kind kind, std::string const& held)
{
    auto const traits = zel::kiv::catalogue::traitsOf(kind);
    return {typeFor(traits.stored, held), typeFor(traits.result, held),
            typeFor(traits.parameter, held)};
}

Accessor getterOf(Field const& field, Types const& types, bool isList)
{
    std::string const about = isList ? "A copy of the list `" + field.key +
                                           "`; its elements are not handed over. Empty while it "
                                           "is not set."
                                     : "The element under `" + field.key +
                                           "`, not handed over; null while it is not set.";
    return {Purpose::Get,
            about,
            types.result,
            getterName(field.key),
            "",
            "return " + memberOf(field) + ";\n",
            {}};
}

Accessor setterOf(Field const& field, Types const& types)
{
    return {Purpose::Set,
            "Sets `" + field.key +
                "` and takes the element over. An element held before is not freed: whoever "
                "replaces it keeps its pointer and frees it.",
            "void",
            setterName(field.key),
            types.parameter,
            memberOf(field) + " = value.release();\n" + flagOf(field) + " = true;\n",
            {}};
}

Accessor adderOf(Field const& field, Types const& types)
{
    return {Purpose::Add,
            "Appends to the list `" + field.key +
                "`, which is set from then on, and takes the element over.",
            "void",
            adderName(field.key),
            types.parameter,
            "internal::append(" + memberOf(field) + ", std::move(value));\n" + flagOf(field) +
                " = true;\n",
            {}};
}

} // namespace

FieldCode elementCode(Field const& field, Interface const& interface)
{
    bool const isList = zel::kiv::catalogue::isList(field.kind);
    Resource const& target = interface.at(field.targets.front());
    Types const types = typesOf(field.kind, elementClassOf(target));
    Accessor const accept = isList ? adderOf(field, types) : setterOf(field, types);
    // The frame makes no difference between what is external and what is not.
    std::string const word = isList ? "ElementList" : "Element";
    FieldCode code;
    code.includes = {headerOf(target)};
    code.accessors = {getterOf(field, types, isList), accept, presenceOf(field)};
    code.members = {declared(field, types.stored), "bool " + flagOf(field) + " = false;"};
    code.flags = {flagOf(field)};
    code.release =
        std::string("    internal::release") + (isList ? "All(" : "(") + memberOf(field) + ");\n";
    code.write = writeStep(field, word);
    // The step names the setter or adder as a template argument, unlike that of plain kinds.
    code.read = wrapped(8, "fields.read" + word + "<&Element::" + accept.name + ">(",
                        {'"' + field.key + '"'}, ",", ");");
    return code;
}

} // namespace kivgen::kinds
