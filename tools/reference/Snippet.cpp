#include "tools/reference/Snippet.h"

#include "tools/lookup/Lookup.h"
#include "tools/sample/SampleValues.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace reference {

namespace {

using kiv::catalogue::Accessor;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;
namespace sample = zel::kiv::sample;

bool isCommon(Field const& field)
{
    return field.key == "id" || field.key == "name" || field.key == "uri";
}

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

/// The accessors stand in one order for every kind: the getter, what writes, what tells presence.
std::string_view getterOf(Field const& field)
{
    return field.accessors.front().name;
}

std::string_view writerOf(Field const& field)
{
    return field.accessors[1].name;
}

std::string_view presenceOf(Field const& field)
{
    auto const found = std::ranges::find_if(
        field.accessors, [](Accessor const& each) { return each.name.starts_with("is"); });
    return found->name;
}

std::string literalFor(Field const& field)
{
    switch (field.kind) {
    case Kind::Int:
    case Kind::IntList:
        return std::to_string(sample::intFor(field.key));
    case Kind::Double: {
        std::string text = std::to_string(sample::doubleFor(field.key));
        text.erase(text.find_last_not_of('0') + 1);
        return text.ends_with('.') ? text + '0' : text;
    }
    case Kind::Bool:
        return "true";
    default:
        return '"' + sample::textFor(field.key) + '"';
    }
}

std::string call(std::string_view object, std::string_view function, std::string_view argument = "")
{
    std::string text(object);
    return text.append("->").append(function).append("(").append(argument).append(")");
}

/// The statements that give a nested element to `element`.
std::string attaching(Field const& field)
{
    Resource const* const target = field.targets.front();
    // One example may hold a polymorphic and another nested field.
    std::string const name = field.kind == Kind::Polymorphic ? "target" : "nested";
    std::string const uri =
        '/' + (target == nullptr ? "other/" + std::string(field.key) : kiv::nameOf(target)) + "/7";
    return "    auto " + name + " = std::make_unique<kiv::" + elementClassOf(target) +
           ">();\n    " + call(name, "setUri", '"' + uri + '"') + ";\n    " +
           call("element", writerOf(field), "std::move(" + name + ")") + ";\n";
}

std::string writing(Field const& field)
{
    if (isNested(field.kind)) {
        return attaching(field);
    }
    return "    " + call("element", writerOf(field), literalFor(field)) + ";\n";
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
    if (field.kind == Kind::Polymorphic) {
        return "            auto const* target = static_cast<kiv::" +
               elementClassOf(field.targets.front()) + " const*>(\n                " + get +
               ");\n            std::cout << target->getUri() << '\\n';\n";
    }
    return "            std::cout << " + get + (isNested(field.kind) ? "->getUri()" : "") +
           " << '\\n';\n";
}

std::string reading(Field const& field)
{
    return "        if (" + call("element", presenceOf(field)) + ") {\n" + printing(field) +
           "        }\n";
}

} // namespace

std::string elementClassOf(Resource const* resource)
{
    if (resource == nullptr) {
        return "ExternalResourceObject";
    }
    std::string name(resource->service);
    return name.append("::").append(resource->name).append("::").append(resource->element);
}

std::string headerOf(Resource const& resource)
{
    std::string name = "services/";
    return name.append(resource.service).append("/").append(resource.name).append(".h");
}

std::string snippetOf(Resource const& resource)
{
    std::string const collection =
        "kiv::" + std::string(resource.service) + "::" + std::string(resource.name);
    std::string writes;
    std::string reads;
    for (Field const* const field : fieldsToShow(resource)) {
        writes += writing(*field);
        reads += reading(*field);
    }
    return "#include \"" + headerOf(resource) + "\"\n\n#include <iostream>\n\n" +
           "namespace kiv = zel::kiv::common;\nusing zel::dataformats::data::Value;\n\n" +
           "// One element, filled, as a value tree.\n" +
           "std::unique_ptr<Value> write()\n{\n    auto element = std::make_unique<kiv::" +
           elementClassOf(&resource) + ">();\n    element->setUri(\"/" + kiv::nameOf(&resource) +
           "/1\");\n" + writes + "\n    " + collection +
           " resource;\n    resource.addObject(std::move(element));\n" +
           "    return resource.serialize();\n}\n\n" + "// What a received value tree holds.\n" +
           "void read(Value const& received)\n{\n    " + collection +
           " resource;\n    resource.deserialize(&received);\n" +
           "    for (auto const& element : resource.getObjects()) {\n" + reads + "    }\n}\n";
}

} // namespace reference
