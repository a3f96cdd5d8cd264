#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

namespace kivgen::kinds {

namespace {

/// The reading step names the setter or adder as a template argument, unlike that of plain kinds.
std::string readStep(Field const& field, std::string const& word, std::string const& accept)
{
    return wrapped(8, "fields.read" + word + "<&Element::" + accept + ">(", {'"' + field.key + '"'},
                   ",", ");");
}

} // namespace

FieldCode elementCode(Field const& field, Interface const& interface)
{
    std::string const held = classOf(field.targets.front(), interface);
    std::string const member = memberOf(field);
    std::string const flag = flagOf(field);
    FieldCode code;
    code.includes = {headerOf(field.targets.front())};
    code.accessors = {
        {"The element under `" + field.key + "`, not handed over; null while it is not set.",
         held + '*', getterName(field.key), "", "return " + member + ";\n"},
        {"Sets `" + field.key +
             "` and takes the element over. An element held before is not freed: whoever replaces "
             "it keeps its pointer and frees it.",
         "void", setterName(field.key), "std::unique_ptr<" + held + '>',
         member + " = value.release();\n" + flag + " = true;\n"},
        presenceOf(field),
    };
    code.members = {held + "* " + member + " = nullptr;", "bool " + flag + " = false;"};
    code.flags = {flag};
    code.release = "    internal::release(" + member + ");\n";
    code.write = writeStep(field, "Element");
    code.read = readStep(field, "Element", setterName(field.key));
    return code;
}

FieldCode elementListCode(Field const& field, Interface const& interface)
{
    std::string const held = classOf(field.targets.front(), interface);
    std::string const type = "std::vector<" + held + "*>";
    std::string const member = memberOf(field);
    std::string const flag = flagOf(field);
    FieldCode code;
    code.includes = {headerOf(field.targets.front())};
    code.accessors = {
        {"A copy of the list `" + field.key +
             "`; its elements are not handed over. Empty while it is not set.",
         type, getterName(field.key), "", "return " + member + ";\n"},
        {"Appends to the list `" + field.key +
             "`, which is set from then on, and takes the element over.",
         "void", adderName(field.key), "std::unique_ptr<" + held + '>',
         "internal::append(" + member + ", std::move(value));\n" + flag + " = true;\n"},
        presenceOf(field),
    };
    code.members = {type + ' ' + member + ';', "bool " + flag + " = false;"};
    code.flags = {flag};
    code.release = "    internal::releaseAll(" + member + ");\n";
    code.write = writeStep(field, "ElementList");
    code.read = readStep(field, "ElementList", adderName(field.key));
    return code;
}

} // namespace kivgen::kinds
