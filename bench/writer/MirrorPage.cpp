#include "bench/writer/Pages.h"

#include <array>

namespace benchwriter {

using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Kind;

namespace {

std::string structOf(Resource const* resource)
{
    if (resource == nullptr) {
        return "mirror::ExternalResourceObject";
    }
    return "mirror::" + std::string(resource->service) + "::" + std::string(resource->element);
}

std::string classOf(Resource const* resource)
{
    std::string const root = "zel::kiv::common::";
    if (resource == nullptr) {
        return root + "ExternalResourceObject";
    }
    return root + std::string(resource->service) + "::" + std::string(resource->name) +
           "::" + std::string(resource->element);
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
        return "std::unique_ptr<" + structOf(field.targets.front()) + ">";
    default:
        return "std::vector<" + structOf(field.targets.front()) + ">";
    }
}

/// The setter or adder stands second among the accessors, behind the getter.
std::string setterOf(Field const& field)
{
    return std::string(field.accessors[1].name);
}

std::string linesOf(std::string const& name, std::string const& className,
                    std::span<Field const> fields, std::set<std::string>& keys)
{
    std::string members;
    std::string visits;
    for (Field const& field : fields) {
        // No document has a field of this kind.
        if (field.kind == Kind::Polymorphic) {
            continue;
        }
        std::string const key(field.key);
        keys.insert(key);
        members += "    " + typeOf(field) + ' ' + key + "_;\n";
        visits += "    visit(keys::" + key + "_, &" + name + "::" + key + "_, &" + className +
                  "::" + setterOf(field) + ");\n";
    }
    return "struct " + name + " {\n    using Class = " + className + ";\n" + members +
           "};\n\ntemplate <typename Visit>\nvoid eachField(" + name +
           " const* /*type*/, Visit&& visit)\n{\n" + visits + "}\n";
}

std::array<Field, 3> const& externalFields()
{
    using zel::kiv::catalogue::Accessor;
    static std::array<std::array<Accessor, 2>, 3> const accessors{
        {{{{"getId", {}}, {"setId", {}}}},
         {{{"getName", {}}, {"setName", {}}}},
         {{{"getUri", {}}, {"setUri", {}}}}}};
    static std::array<Field, 3> const fields{{{"id", Kind::String, "", {}, accessors[0]},
                                              {"name", Kind::String, "", {}, accessors[1]},
                                              {"uri", Kind::String, "", {}, accessors[2]}}};
    return fields;
}

} // namespace

Files mirrorPage(Resources const& resources, std::span<Resource const* const> roots)
{
    std::string includes = "#include \"frame/ExternalResourceObject.h\"\n";
    std::string declarations;
    std::set<std::string> keys;
    std::string structs =
        "namespace mirror {\n\n" +
        linesOf("ExternalResourceObject", classOf(nullptr), externalFields(), keys) + "\n}\n\n";
    for (Resource const* resource : resources) {
        std::string const space = "namespace mirror::" + std::string(resource->service) + " {\n";
        includes += "#include \"services/" + std::string(resource->service) + '/' +
                    std::string(resource->name) + ".h\"\n";
        declarations += space + "struct " + std::string(resource->element) + ";\n}\n";
        structs +=
            space + '\n' +
            linesOf(std::string(resource->element), classOf(resource), resource->fields, keys) +
            "\n}\n\n";
    }
    std::string strings;
    for (std::string const& key : keys) {
        strings += "inline std::string const " + key + "_{\"" + key + "\"};\n";
    }
    std::string dispatch;
    for (Resource const* root : roots) {
        std::string const name = std::string(root->service) + "::" + std::string(root->name);
        dispatch += "    if (resource == \"" + name +
                    "\") {\n        visit(Root<zel::kiv::common::" + name + ", " + structOf(root) +
                    ">{});\n    }\n";
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
