#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

#include <algorithm>

namespace kivgen::kinds {

namespace {

/// The flag of one target beside the stored pointer.
std::string flagOf(Field const& field, Target const& target, Interface const& interface)
{
    std::string const presence = presenceName(field.key, interface.at(target));
    auto const ending = (stemOf(field.key) + "Set").size();
    return memberOf(field) + '_' + presence.substr(0, presence.size() - ending);
}

Accessor setterOf(Field const& field, Target const& target, Interface const& interface)
{
    std::string body = memberOf(field) + " = value.release();\n";
    for (Target const& each : field.targets) {
        bool const own = flagOf(field, each, interface) == flagOf(field, target, interface);
        body += flagOf(field, each, interface) + (own ? " = true;\n" : " = false;\n");
    }
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    return {Purpose::Set,
            "void",
            setterName(field.key),
            typeFor(traits.parameter, elementClassOf(interface.at(target))),
            body,
            target};
}

Accessor presenceOf(Field const& field, Target const& target, Interface const& interface)
{
    return {Purpose::Presence,
            "bool",
            presenceName(field.key, interface.at(target)),
            "",
            "return " + flagOf(field, target, interface) + ';',
            target};
}

/// What brings an element of that target into the field.
Block handoverOf(Field const& field, Target const& target, Interface const& interface,
                 std::string const& end)
{
    return wrapped("internal::handover<",
                   {"Element", "common::" + elementClassOf(interface.at(target)),
                    "&Element::" + setterName(field.key)},
                   ",", '>' + end);
}

Block rowOf(Field const& field, Target const& target, Interface const& interface)
{
    return fill(R"(
{
    "$service$/$resource$",
    $handover$
},
)",
                {{"service", target.service},
                 {"resource", interface.at(target).resourceKey},
                 {"handover", handoverOf(field, target, interface, ",")}});
}

/// The uri's service and resource decide, in the order of the targets; an external target takes
/// what is left, wherever it stands among them.
Block targetsOf(Field const& field, Interface const& interface)
{
    Block rows;
    Block lastResort;
    for (Target const& target : field.targets) {
        if (!target.isExternal()) {
            rows += rowOf(field, target, interface);
            continue;
        }
        lastResort =
            fill(R"(

constexpr internal::Handover<common::IObjectBase> $key$LastResort =
    $handover$
)",
                 {{"key", field.key}, {"handover", handoverOf(field, target, interface, ";")}});
    }
    return fill(R"(
constexpr internal::Target $key$Targets[] = {
    $rows$
};
$lastResort$

)",
                {{"key", field.key}, {"rows", rows}, {"lastResort", lastResort}});
}

Block readStep(Field const& field)
{
    std::vector<std::string> arguments = {'"' + field.key + '"', field.key + "Targets"};
    if (std::ranges::any_of(field.targets, &Target::isExternal)) {
        arguments.push_back('&' + field.key + "LastResort");
    }
    return wrapped("fields.readPolymorphic(", arguments, ",", ");");
}

} // namespace

FieldCode polymorphicCode(Field const& field, Interface const& interface)
{
    std::string const member = memberOf(field);
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    FieldCode code;
    code.warning = replacement;
    code.members = {declared(field, traits.stored)};
    code.accessors = {{Purpose::Get,
                       std::string(traits.result),
                       getterName(field.key),
                       "",
                       "return " + member + ';',
                       {}}};
    for (Target const& target : field.targets) {
        code.includes.push_back(headerOf(interface.at(target)));
        code.flags.push_back(flagOf(field, target, interface));
        code.members.push_back("bool " + code.flags.back() + " = false;");
        code.accessors.push_back(setterOf(field, target, interface));
    }
    for (Target const& target : field.targets) {
        code.accessors.push_back(presenceOf(field, target, interface));
    }
    code.targets = targetsOf(field, interface);
    code.read = readStep(field);
    code.write = writeStep(field, "Element");
    code.release = "internal::release(" + member + ");";
    return code;
}

} // namespace kivgen::kinds
