#include "tools/reference/Snippet.h"

#include "tools/lookup/Lookup.h"
#include "tools/sample/SampleValues.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace reference {

namespace {

using kiv::catalogue::Content;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Purpose;
using kiv::catalogue::Resource;
namespace sample = zel::kiv::sample;

bool isCommon(Field const& field)
{
    return kiv::catalogue::external().find(field.key) != nullptr;
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

std::string_view nameOf(Field const& field, Purpose purpose)
{
    return field.find(purpose)->name;
}

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
        '/' + (target->isExternal() ? "other/" + std::string(field.key) : kiv::nameOf(target)) +
        "/7";
    return "    auto " + name + " = std::make_unique<kiv::" + std::string(target->elementClass) +
           ">();\n    " + call(name, "setUri", '"' + uri + '"') + ";\n    " +
           call("element", field.writer().name, "std::move(" + name + ")") + ";\n";
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
    std::string const get = call("element", nameOf(field, Purpose::Get));
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
               std::string(field.targets.front()->elementClass) + " const*>(\n                " +
               get + ");\n            std::cout << target->getUri() << '\\n';\n";
    }
    return "            std::cout << " + get + (isNested(field.kind) ? "->getUri()" : "") +
           " << '\\n';\n";
}

std::string reading(Field const& field)
{
    return "        if (" + call("element", nameOf(field, Purpose::Presence)) + ") {\n" +
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
           "std::unique_ptr<Value> write()\n{\n    auto element = std::make_unique<kiv::" +
           std::string(resource.elementClass) + ">();\n    element->setUri(\"/" +
           kiv::nameOf(&resource) + "/1\");\n" + writes + "\n    " + collection +
           " resource;\n    resource.addObject(std::move(element));\n" +
           "    return resource.serialize();\n}\n\n" + "// What a received value tree holds.\n" +
           "void read(Value const& received)\n{\n    " + collection +
           " resource;\n    resource.deserialize(&received);\n" +
           "    for (auto const& element : resource.getObjects()) {\n" + reads + "    }\n}\n";
}

} // namespace reference
