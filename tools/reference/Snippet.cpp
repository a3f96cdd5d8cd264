#include "tools/reference/Snippet.h"

#include "tools/lookup/Lookup.h"
#include "tools/reference/FieldTable.h"
#include "tools/sample/SampleValues.h"

#include <array>
#include <vector>

namespace reference {

namespace {

using kiv::catalogue::Accessor;
using kiv::catalogue::Content;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Purpose;
using kiv::catalogue::Resource;
namespace sample = zel::kiv::sample;

/// Kinds that are alike in use; an example shows one field of each group that the resource has.
int groupOf(Kind kind)
{
    if (kind == Kind::Polymorphic) {
        return 0;
    }
    if (isNested(kind)) {
        return 1;
    }
    return isList(kind) ? 2 : 3;
}

std::vector<Field const*> fieldsToShow(Resource const& resource)
{
    std::array<bool, 4> isShown{};
    std::vector<Field const*> fields;
    for (Field const& field : resource.fields) {
        bool& shown = isShown.at(static_cast<std::size_t>(groupOf(field.kind)));
        if (!isCommon(field) && !shown) {
            fields.push_back(&field);
            shown = true;
        }
    }
    if (fields.empty()) {
        fields.push_back(resource.find("name"));
    }
    return fields;
}

std::string_view getterOf(Field const& field)
{
    return field.find(Purpose::Get)->name;
}

/// A C++ literal of what one call of the setter or adder takes.
std::string literalFor(Field const& field)
{
    switch (traitsOf(field.kind).content) {
    case Content::Integer:
        return std::to_string(sample::intFor(field.key));
    case Content::Float: {
        std::string text = std::to_string(sample::doubleFor(field.key));
        text.erase(text.find_last_not_of('0') + 1);
        return text.ends_with('.') ? text + '0' : text;
    }
    case Content::Boolean:
        return "true";
    case Content::String:
    case Content::Object:
        break;
    }
    return '"' + sample::textFor(field.key) + '"';
}

/// The class of the target's element, as the snippets spell it.
std::string className(Resource const& target)
{
    return "kiv::" + std::string(target.elementClass);
}

std::string call(std::string_view object, std::string_view function, std::string_view argument = "")
{
    std::string text(object);
    return text.append("->").append(function).append("(").append(argument).append(")");
}

/// The statements that give a nested element to `element`.
std::string attaching(Field const& field)
{
    Resource const& target = *field.targets.front();
    // One example may hold a polymorphic and another nested field.
    std::string const name = field.kind == Kind::Polymorphic ? "target" : "nested";
    std::string const uri =
        '/' + (target.isExternal() ? "other/" + std::string(field.key) : kiv::nameOf(&target)) +
        "/7";
    std::string text = "    auto " + name + " = std::make_unique<" + className(target) +
                       ">();\n    " + call(name, "setUri", '"' + uri + '"') + ";\n";
    if (!isList(field.kind)) {
        text += "    // Replaced by another one later, this one would be nobody's and leak.\n";
    }
    return text + "    " + call("element", field.writer().name, "std::move(" + name + ")") + ";\n";
}

std::string writing(Field const& field)
{
    if (isNested(field.kind)) {
        return attaching(field);
    }
    return "    " + call("element", field.writer().name, literalFor(field)) + ";\n";
}

std::string printing(Field const& field)
{
    std::string const get = call("element", getterOf(field));
    if (isNested(field.kind) && isList(field.kind)) {
        return "            for (auto const* nested : " + get +
               ") {\n                std::cout << nested->getUri() << '\\n';\n            }\n";
    }
    if (isList(field.kind)) {
        return "            for (auto const& entry : " + get +
               ") {\n                std::cout << entry << '\\n';\n            }\n";
    }
    return "            std::cout << " + get + (isNested(field.kind) ? "->getUri()" : "") +
           " << '\\n';\n";
}

/// One branch for each class that the field may hold.
std::string readingTargets(Field const& field)
{
    std::string text;
    for (Accessor const& accessor : field.accessors) {
        if (accessor.purpose != Purpose::Presence) {
            continue;
        }
        text += (text.empty() ? "        if (" : " else if (") + call("element", accessor.name) +
                ") {\n            auto const* target = static_cast<" + className(*accessor.target) +
                " const*>(\n                " + call("element", getterOf(field)) +
                ");\n            std::cout << target->getUri() << '\\n';\n        }";
    }
    text += '\n';
    return field.hasLastResort()
               ? text
               : "        // A uri that names none of these is dropped: none is set then.\n" + text;
}

std::string reading(Field const& field)
{
    if (field.kind == Kind::Polymorphic) {
        return readingTargets(field);
    }
    return "        if (" + call("element", field.find(Purpose::Presence)->name) + ") {\n" +
           printing(field) + "        }\n";
}

} // namespace

std::string snippetOf(Resource const& resource)
{
    std::string const collection = "kiv::" + std::string(resource.resourceClass);
    std::string writes;
    std::string reads;
    for (Field const* const field : fieldsToShow(resource)) {
        writes += writing(*field);
        reads += reading(*field);
    }
    return "#include \"" + std::string(resource.header) + "\"\n\n#include <iostream>\n\n" +
           "namespace kiv = zel::kiv::common;\nusing zel::dataformats::data::Value;\n\n" +
           "// One element, filled, as a value tree.\n" +
           "std::unique_ptr<Value> write()\n{\n    auto element = std::make_unique<" +
           className(resource) + ">();\n    element->setUri(\"/" + kiv::nameOf(&resource) +
           "/1\");\n" + writes + "\n    " + collection +
           " resource;\n    resource.addObject(std::move(element));\n" +
           "    return resource.serialize();\n}\n\n" + "// What a received value tree holds.\n" +
           "void read(Value const& received)\n{\n    " + collection +
           " resource;\n    resource.deserialize(&received);\n" +
           "    for (auto const& element : resource.getObjects()) {\n" + reads + "    }\n}\n";
}

} // namespace reference
