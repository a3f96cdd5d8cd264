#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/kinds/Kinds.h"

#include <algorithm>

namespace kivgen::kinds {

namespace {

std::string elementNameOf(Target const& target, Interface const& interface)
{
    return target.isExternal() ? "" : interface.find(target.service, target.resource)->element;
}

/// The flag of one target beside the stored pointer.
std::string flagOf(Field const& field, Target const& target, Interface const& interface)
{
    std::string const presence = presenceName(field.key, target, elementNameOf(target, interface));
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
    std::string const held = classOf(target, interface);
    return {"Sets `" + field.key +
                "` to an element of this class and takes it over. An element held before is not "
                "freed: whoever replaces it keeps its pointer and frees it.",
            "void", setterName(field.key), "std::unique_ptr<" + held + '>', body};
}

Accessor presenceOf(Field const& field, Target const& target, Interface const& interface)
{
    return {"Whether `" + field.key + "` holds a `" + classOf(target, interface) + "`.", "bool",
            presenceName(field.key, target, elementNameOf(target, interface)), "",
            "return " + flagOf(field, target, interface) + ";\n"};
}

std::string attachStep(Field const& field, Target const& target, Interface const& interface)
{
    return wrapped(12, "nested.attach<common::" + classOf(target, interface) + ">(",
                   {"*m_target", "&Element::" + setterName(field.key)}, ",", ");");
}

/// The uri's service and resource decide, in the order of the targets; an external target takes
/// what is left, wherever it stands among them.
std::string dispatchSteps(Field const& field, Interface const& interface)
{
    std::string steps;
    std::string lastResort;
    for (Target const& target : field.targets) {
        if (target.isExternal()) {
            lastResort = attachStep(field, target, interface);
            continue;
        }
        auto const& resource = *interface.find(target.service, target.resource);
        steps += steps.empty() ? "        if" : "        } else if";
        steps += " (resource == \"" + target.service + '/' + resource.resourceKey + "\") {\n";
        steps += attachStep(field, target, interface);
    }
    if (!lastResort.empty()) {
        steps += "        } else {\n" + lastResort;
    }
    return steps + "        }\n";
}

std::string readMethodOf(Field const& field, Interface const& interface)
{
    return fill(R"(
    void read$Stem$(Value const& value)
    {
        internal::NestedObject const nested(value);
        std::string const resource = common::IObjectBase::getServiceAndResourceString(nested.get());
        if (resource.empty()) {
            return;
        }
$steps$
    }
)",
                {{"Stem", stemOf(field.key)}, {"steps", dispatchSteps(field, interface)}});
}

} // namespace

FieldCode polymorphicCode(Field const& field, Interface const& interface)
{
    std::string const member = memberOf(field);
    FieldCode code;
    code.members = {"IObjectBase* " + member + " = nullptr;"};
    code.accessors = {{"The element under `" + field.key +
                           "`, not handed over; null while it is not set. Its class is told by "
                           "the accessors below.",
                       "IObjectBase*", getterName(field.key), "", "return " + member + ";\n"}};
    for (Target const& target : field.targets) {
        code.includes.push_back(headerOf(target));
        code.flags.push_back(flagOf(field, target, interface));
        code.members.push_back("bool " + code.flags.back() + " = false;");
        code.accessors.push_back(setterOf(field, target, interface));
    }
    for (Target const& target : field.targets) {
        code.accessors.push_back(presenceOf(field, target, interface));
    }
    code.read = fill(R"(
        if (auto const* const value = fields.find("$key$")) {
            read$Stem$(*value);
        }
)",
                     {{"key", field.key}, {"Stem", stemOf(field.key)}});
    code.readMethod = readMethodOf(field, interface);
    code.write = writeStep(field, "Element");
    code.release = "    internal::release(" + member + ");\n";
    return code;
}

} // namespace kivgen::kinds
