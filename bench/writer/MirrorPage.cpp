#include "bench/writer/Pages.h"

#include <stdexcept>
#include <string_view>

namespace benchwriter {

using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Kind;

namespace {

/// The namespace of the plain structures of one service.
std::string spaceOf(Resource const& resource)
{
    return "mirror" + (resource.isExternal() ? "" : "::" + std::string(resource.service));
}

std::string structOf(Resource const& resource)
{
    return spaceOf(resource) + "::" + std::string(resource.element);
}

std::string inRoot(std::string_view name)
{
    return std::string(zel::kiv::catalogue::rootNamespace) + "::" + std::string(name);
}

std::string typeOf(Field const& field)
{
    switch (field.kind) {
    case Kind::String:
        return "std::optional<std::string>";
    case Kind::Int:
        return "std::optional<int>";
    case Kind::Double:
        return "std::optional<double>";
    case Kind::Bool:
        return "std::optional<bool>";
    case Kind::StringList:
        return "std::vector<std::string>";
    case Kind::IntList:
        return "std::vector<int>";
    case Kind::Element:
    case Kind::External:
        return "std::unique_ptr<" + structOf(*field.targets.front()) + ">";
    case Kind::ElementList:
    case Kind::ExternalList:
        return "std::vector<" + structOf(*field.targets.front()) + ">";
    case Kind::Polymorphic:
        break;
    }
    throw std::logic_error("a field that no document has");
}

std::string linesOf(Resource const& resource, std::set<std::string>& keys)
{
    std::string const name(resource.element);
    std::string const className = inRoot(resource.elementClass);
    std::string members;
    std::string visits;
    for (Field const& field : resource.fields) {
        // No document has a field of this kind.
        if (field.kind == Kind::Polymorphic) {
            continue;
        }
        std::string const key(field.key);
        keys.insert(key);
        members += "    " + typeOf(field) + ' ' + key + "_;\n";
        visits += "    visit(keys::" + key + "_, &" + name + "::" + key + "_, &" + className +
                  "::" + std::string(field.writer().name) + ");\n";
    }
    return "struct " + name + " {\n    using Class = " + className + ";\n" + members +
           "};\n\ntemplate <typename Visit>\nvoid eachField(" + name +
           " const* /*type*/, Visit&& visit)\n{\n" + visits + "}\n";
}

} // namespace

Files mirrorPage(Resources const& resources, std::span<Resource const* const> roots)
{
    std::string includes;
    std::string declarations;
    std::set<std::string> keys;
    std::string structs;
    for (Resource const* resource : resources) {
        std::string const space = "namespace " + spaceOf(*resource) + " {\n";
        includes += "#include \"" + std::string(resource->header) + "\"\n";
        declarations += space + "struct " + std::string(resource->element) + ";\n}\n";
        structs += space + '\n' + linesOf(*resource, keys) + "\n}\n\n";
    }
    std::string strings;
    for (std::string const& key : keys) {
        strings += "inline std::string const " + key + "_{\"" + key + "\"};\n";
    }
    std::string dispatch;
    for (Resource const* root : roots) {
        dispatch += "    if (resource == \"" + std::string(root->resourceClass) +
                    "\") {\n        visit(Root<" + inRoot(root->resourceClass) + ", " +
                    structOf(*root) + ">{});\n    }\n";
    }
    return {{"Mirror.h",
             "#pragma once\n\n" + includes +
                 "\n#include <memory>\n#include <optional>\n#include <string>\n"
                 "#include <string_view>\n#include <vector>\n\n" +
                 "namespace mirror::keys {\n" + strings + "}\n\n" + declarations + '\n' + structs +
                 "namespace mirror {\n\ntemplate <typename ResourceClass, typename ElementMirror>\n"
                 "struct Root {\n    using Resource = ResourceClass;\n"
                 "    using Element = ElementMirror;\n};\n\n"
                 "template <typename Visit>\n"
                 "void withRoot(std::string_view resource, Visit&& visit)\n{\n" +
                 dispatch + "}\n\n}\n"}};
}

} // namespace benchwriter
