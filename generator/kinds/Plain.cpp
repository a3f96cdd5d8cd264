#include "generator/kinds/Plain.h"

#include "generator/Naming.h"

namespace kivgen::kinds {

FieldCode plainCode(Field const& field, Plain const& plain)
{
    std::string const member = memberOf(field);
    std::string const flag = flagOf(field);
    FieldCode code;
    code.accessors = {
        {"The `" + field.key + "`; " + std::string(plain.unset) + " while it is not set.",
         std::string(plain.result), getterName(field.key), "", "return " + member + ";\n"},
        {"Sets `" + field.key + "`, whatever the value.", "void", setterName(field.key),
         std::string(plain.parameter), member + " = value;\n" + flag + " = true;\n"},
        presenceOf(field),
    };
    code.members = {std::string(plain.type) + ' ' + member + std::string(plain.initial) + ';',
                    "bool " + flag + " = false;"};
    code.flags = {flag};
    addSteps(code, field, std::string(plain.word), setterName(field.key));
    return code;
}

FieldCode plainListCode(Field const& field, Plain const& plain)
{
    std::string const member = memberOf(field);
    std::string const flag = flagOf(field);
    std::string const type = "std::vector<" + std::string(plain.type) + '>';
    FieldCode code;
    code.accessors = {
        {"A copy of the list `" + field.key + "`; empty while it is not set.", type,
         getterName(field.key), "", "return " + member + ";\n"},
        {"Appends to the list `" + field.key + "`, which is set from then on.", "void",
         adderName(field.key), std::string(plain.parameter),
         member + ".push_back(value);\n" + flag + " = true;\n"},
        presenceOf(field),
    };
    code.members = {type + ' ' + member + ';', "bool " + flag + " = false;"};
    code.flags = {flag};
    addSteps(code, field, std::string(plain.word) + "List", adderName(field.key));
    return code;
}

} // namespace kivgen::kinds
