#include "json/JsonWriter.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/schema/Schema.h"
#include "tools/lookup/Lookup.h"

namespace kiv {

namespace {

class SchemaCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "schema"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Write the JSON Schema of a resource's documents, for editors";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv schema radio/presets > presets.schema.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.optional("RESOURCE", m_resource,
                           "The resource, as in uris; without one, the definitions of all, such as "
                           "#/$defs/radio.presets.document, for other schemas to refer to");
    }

    Exit run(Console& console) override
    {
        auto const schema = m_resource.empty() ? schema::ofInterface()
                                               : schema::ofResource(resourceNamed(m_resource));
        json::makeWriter(console.output, json::Layout::Indented)->document(schema.get());
        return Exit::Clean;
    }

private:
    std::string m_resource;
};

} // namespace

std::unique_ptr<Command> makeSchemaCommand()
{
    return std::make_unique<SchemaCommand>();
}

} // namespace kiv
