#include "json/JsonWriter.h"
#include "json/Make.h"
#include "text/Phrases.h"
#include "tools/kiv/Command.h"
#include "tools/lookup/Lookup.h"

namespace kiv {

namespace {

std::string targetsText(catalogue::Field const& field)
{
    std::string text = listed(targetNames(field), "or");
    return field.hasLastResort() ? text + " (external tried last)" : text;
}

std::unique_ptr<data::Value> fieldValue(catalogue::Field const& field)
{
    auto targets = std::make_unique<data::Array>();
    for (auto const& name : targetNames(field)) {
        targets->pushNew(json::text(name).release());
    }
    auto accessors = std::make_unique<data::Array>();
    for (auto const& accessor : field.accessors) {
        accessors->pushNew(json::Members()
                               .with("name", accessor.name)
                               .with("signature", accessor.signature)
                               .take()
                               .release());
    }
    auto value = std::make_unique<data::Object>();
    value->setNew("accessors", accessors.release());
    value->setNew("key", json::text(field.key).release());
    value->setNew("kind", json::text(wordOf(field.kind)).release());
    if (!field.note.empty()) {
        value->setNew("note", json::text(field.note).release());
    }
    value->setNew("targets", targets.release());
    return value;
}

std::unique_ptr<data::Value> holdersValue(catalogue::Resource const& resource)
{
    auto holders = std::make_unique<data::Array>();
    for (auto const& place : holdersOf(resource)) {
        auto entry = std::make_unique<data::Object>();
        entry->setNew("field", json::text(place.field->key).release());
        entry->setNew("kind", json::text(wordOf(place.field->kind)).release());
        entry->setNew("resource", json::text(nameOf(place.resource)).release());
        holders->pushNew(entry.release());
    }
    return holders;
}

std::unique_ptr<data::Value> resourceValue(catalogue::Resource const& resource)
{
    auto fields = std::make_unique<data::Array>();
    for (auto const& field : resource.fields) {
        fields->pushNew(fieldValue(field).release());
    }
    auto value = std::make_unique<data::Object>();
    value->setNew("about", json::text(resource.about).release());
    value->setNew("class", json::text(resource.resourceClass).release());
    value->setNew("element", json::text(resource.element).release());
    value->setNew("elementKey", json::text(resource.elementKey).release());
    value->setNew("fields", fields.release());
    value->setNew("header", json::text(resource.header).release());
    value->setNew("heldBy", holdersValue(resource).release());
    value->setNew("resource", json::text(nameOf(&resource)).release());
    value->setNew("resourceKey", json::text(resource.resourceKey).release());
    return value;
}

void printHeading(catalogue::Resource const& resource, Console& console)
{
    console.output.write(console.style.strong(nameOf(&resource)) + "\n");
    console.output.write(std::string(resource.about) + "\n\n");
    Table table;
    table.add({"class", std::string(resource.resourceClass)});
    table.add({"element", std::string(resource.elementClass)});
    table.add({"header", std::string(resource.header)});
    table.print(console);
}

void printNotes(catalogue::Resource const& resource, Console& console)
{
    Table table;
    for (auto const& field : resource.fields) {
        if (!field.note.empty()) {
            table.add({std::string(field.key), std::string(field.note)});
        }
    }
    if (!table.empty()) {
        console.output.write("\nnotes\n");
        table.print(console, "  ");
    }
}

void printFields(catalogue::Resource const& resource, Console& console)
{
    console.output.write("\n" + counted(resource.fields.size(), "field") + "\n");
    Table table;
    for (auto const& field : resource.fields) {
        table.add({std::string(field.key), std::string(wordOf(field.kind)), targetsText(field)});
    }
    table.print(console, "  ");
    printNotes(resource, console);
    console.output.write("\naccessors\n");
    for (auto const& field : resource.fields) {
        for (auto const& accessor : field.accessors) {
            console.output.write("  " + std::string(accessor.signature) + "\n");
        }
    }
}

void printHolders(catalogue::Resource const& resource, Console& console)
{
    auto const holders = holdersOf(resource);
    console.output.write(holders.empty() ? "\nheld by no other resource\n" : "\nheld by\n");
    Table table;
    for (auto const& place : holders) {
        table.add({nameOf(place), std::string(wordOf(place.field->kind))});
    }
    table.print(console, "  ");
}

class ShowCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "show"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Show a resource: its fields, their accessors, and who holds it";
    }
    [[nodiscard]] std::string_view example() const override { return "kiv show radio/presets"; }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("RESOURCE", m_resource, "The resource, as in uris");
        arguments.flag("--json", m_json, "Print it as JSON");
    }

    Exit run(Console& console) override
    {
        catalogue::Resource const& resource = resourceNamed(m_resource);
        if (m_json) {
            json::makeWriter(console.output, json::Layout::Indented)
                ->document(resourceValue(resource).get());
        } else {
            printHeading(resource, console);
            printFields(resource, console);
            printHolders(resource, console);
        }
        return Exit::Clean;
    }

private:
    std::string m_resource;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeShowCommand()
{
    return std::make_unique<ShowCommand>();
}

} // namespace kiv
