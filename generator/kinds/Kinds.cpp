#include "generator/kinds/Kinds.h"

#include "generator/Naming.h"
#include "generator/Printer.h"

#include <stdexcept>

namespace kivgen {

FieldCode codeOf(Field const& field, Interface const& interface)
{
    switch (field.kind) {
    case Kind::String:
        return kinds::stringCode(field);
    case Kind::StringList:
        return kinds::stringListCode(field);
    case Kind::Int:
        return kinds::intCode(field);
    case Kind::IntList:
        return kinds::intListCode(field);
    case Kind::Double:
        return kinds::doubleCode(field);
    case Kind::Bool:
        return kinds::boolCode(field);
    case Kind::Element:
    case Kind::External:
        return kinds::elementCode(field, interface);
    case Kind::ElementList:
    case Kind::ExternalList:
        return kinds::elementListCode(field, interface);
    case Kind::Polymorphic:
        return kinds::polymorphicCode(field, interface);
    }
    throw std::logic_error("a field without a kind: " + field.key);
}

std::string headerOf(Target const& target)
{
    if (target.isExternal()) {
        return "frame/ExternalResourceObject.h";
    }
    return "services/" + target.service + '/' + target.resource + ".h";
}

std::string classOf(Target const& target, Interface const& interface)
{
    if (target.isExternal()) {
        return "ExternalResourceObject";
    }
    auto const* const resource = interface.find(target.service, target.resource);
    if (resource == nullptr) {
        throw std::logic_error("a target that was not checked: " + target.service +
                               "::" + target.resource);
    }
    return target.service + "::" + target.resource + "::" + resource->element;
}

std::string memberOf(Field const& field)
{
    return "m_" + field.key;
}

std::string flagOf(Field const& field)
{
    return memberOf(field) + "_isSet";
}

Accessor presenceOf(Field const& field)
{
    return {"Whether `" + field.key + "` is set.", "bool", presenceName(field.key), "",
            "return " + flagOf(field) + ";\n"};
}

std::string writeStep(Field const& field, std::string const& word)
{
    return wrapped(8, "object.add" + word + "(", {'"' + field.key + '"', memberOf(field)}, ",",
                   ");");
}

void addSteps(FieldCode& code, Field const& field, std::string const& word,
              std::string const& accept)
{
    code.write = writeStep(field, word);
    code.read = wrapped(8, "fields.read" + word + "(",
                        {'"' + field.key + '"', "&Element::" + accept}, ",", ");");
}

} // namespace kivgen
