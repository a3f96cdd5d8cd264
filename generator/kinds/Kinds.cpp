#include "generator/kinds/Kinds.h"

#include "generator/Naming.h"
#include "generator/Printer.h"

#include <stdexcept>

namespace kivgen {

FieldCode codeOf(Field const& field, Interface const& interface)
{
    switch (field.kind) {
    case Kind::String:
    case Kind::Int:
    case Kind::Double:
    case Kind::Bool:
    case Kind::StringList:
    case Kind::IntList:
        return kinds::plainCode(field);
    case Kind::Element:
    case Kind::ElementList:
    case Kind::External:
    case Kind::ExternalList:
        return kinds::elementCode(field, interface);
    case Kind::Polymorphic:
        return kinds::polymorphicCode(field, interface);
    }
    throw std::logic_error("a field without a kind: " + field.key);
}

std::string memberOf(Field const& field)
{
    return "m_" + field.key;
}

std::string flagOf(Field const& field)
{
    return memberOf(field) + "_isSet";
}

std::string declared(Field const& field, std::string_view type)
{
    std::string const initial{zel::kiv::catalogue::traitsOf(field.kind).initial};
    return std::string(type) + ' ' + memberOf(field) +
           (initial.empty() ? ";" : " = " + initial + ';');
}

std::string typeFor(std::string_view type, std::string_view held)
{
    std::string result{type};
    if (auto const place = result.find('T'); place != std::string::npos) {
        result.replace(place, 1, held);
    }
    return result;
}

Accessor presenceOf(Field const& field)
{
    return {Purpose::Presence,
            "bool",
            presenceName(field.key),
            "",
            "return " + flagOf(field) + ";",
            {}};
}

Block writeStep(Field const& field, std::string const& word)
{
    return wrapped("object.add" + word + "(", {'"' + field.key + '"', memberOf(field)}, ",", ");");
}

} // namespace kivgen
