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
            "Sets `" + field.key +
                "` to an element of this class and takes it over. An element held before is not "
                "freed: whoever replaces it keeps its pointer and frees it.",
            "void",
            setterName(field.key),
            typeFor(traits.parameter, elementClassOf(interface.at(target))),
            body,
            target};
}

Accessor presenceOf(Field const& field, Target const& target, Interface const& interface)
{
    Resource const& held = interface.at(target);
    return {Purpose::Presence,
            "Whether `" + field.key + "` holds a `" + elementClassOf(held) + "`.",
            "bool",
            presenceName(field.key, held),
            "",
            "return " + flagOf(field, target, interface) + ";\n",
            target};
}

constexpr std::string_view handover = "internal::handover<";

/// What the frame's `handover` takes to bring an element of that target into the field.
std::vector<std::string> argumentsOf(Field const& field, Target const& target,
                                     Interface const& interface)
{
    return {"Element", "common::" + elementClassOf(interface.at(target)),
            "&Element::" + setterName(field.key)};
}

std::string rowOf(Field const& field, Target const& target, Interface const& interface)
{
    Resource const& resource = interface.at(target);
    std::string const start = "{\"" + target.service + '/' + resource.resourceKey + "\",";
    std::string const beside = start + ' ' + std::string(handover);
    std::vector<std::string> const arguments = argumentsOf(field, target, interface);
    std::string const below = wrapped(5, handover, arguments, ",", ">},");
    bool const isOneLine = std::ranges::count(below, '\n') == 1;
    auto const width = 4 + beside.size() + arguments[0].size() + 2 + arguments[1].size() + 1;
    return isOneLine || width > columns ? "    " + start + '\n' + below
                                        : wrapped(4, beside, arguments, ",", ">},");
}

/// The field's key as the name of a constant, and what the constant is.
std::string constantOf(Field const& field, std::string_view what)
{
    return field.key + std::string(what);
}

/// The uri's service and resource decide, in the order of the targets; an external target takes
/// what is left, wherever it stands among them.
std::string targetsOf(Field const& field, Interface const& interface)
{
    std::string rows;
    std::string lastResort;
    for (Target const& target : field.targets) {
        if (target.isExternal()) {
            lastResort = "constexpr internal::Handover<common::IObjectBase> " +
                         constantOf(field, "LastResort") + " =\n" +
                         wrapped(4, handover, argumentsOf(field, target, interface), ",", ">;") +
                         '\n';
        } else {
            rows += rowOf(field, target, interface);
        }
    }
    return "constexpr internal::Target " + constantOf(field, "Targets") + "[] = {\n" + rows +
           "};\n\n" + lastResort;
}

std::string readStep(Field const& field)
{
    std::vector<std::string> arguments = {'"' + field.key + '"', constantOf(field, "Targets")};
    if (std::ranges::any_of(field.targets, &Target::isExternal)) {
        arguments.push_back('&' + constantOf(field, "LastResort"));
    }
    return wrapped(8, "fields.readPolymorphic(", arguments, ",", ");");
}

} // namespace

FieldCode polymorphicCode(Field const& field, Interface const& interface)
{
    std::string const member = memberOf(field);
    FieldCode code;
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    code.members = {declared(field, traits.stored)};
    code.accessors = {{Purpose::Get,
                       "The element under `" + field.key +
                           "`, not handed over; null while it is not set. Its class is told by "
                           "the accessors below.",
                       std::string(traits.result),
                       getterName(field.key),
                       "",
                       "return " + member + ";\n",
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
    code.release = "    internal::release(" + member + ");\n";
    return code;
}

} // namespace kivgen::kinds
