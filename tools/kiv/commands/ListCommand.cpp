#include "json/JsonWriter.h"
#include "json/Make.h"
#include "text/Phrases.h"
#include "tools/kiv/Command.h"
#include "tools/lookup/Lookup.h"

namespace kiv {

namespace {

class ListCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "list"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "List the services, or the resources of one";
    }
    [[nodiscard]] std::string_view example() const override { return "kiv list radio"; }

    void declare(commandline::Arguments arguments) override
    {
        arguments.optional("SERVICE", m_service, "The service whose resources to list");
        arguments.flag("--names", m_names, "Only the names of the resources, one to a line");
        arguments.flag("--json", m_json, "Print it as JSON");
    }

    Exit run(Console& console) override
    {
        if (m_names) {
            listNames(console);
        } else if (m_json) {
            writeJson(console);
        } else {
            m_service.empty() ? listServices(console) : listResources(console);
        }
        return Exit::Clean;
    }

private:
    void listNames(Console& console) const
    {
        auto const asked =
            m_service.empty() ? services() : std::vector<std::string_view>{m_service};
        for (auto const service : asked) {
            for (auto const* resource : resourcesOf(service)) {
                console.output.write(nameOf(resource) + "\n");
            }
        }
    }

    static void listServices(Console& console)
    {
        std::size_t fields = 0;
        for (auto const group : catalogue::groups) {
            Table table;
            for (auto const& service : catalogue::services()) {
                if (service.group != group) {
                    continue;
                }
                auto const own = fieldsOf(resourcesOf(service.name));
                table.add({std::string(service.name), counted(service.resources.size(), "resource"),
                           counted(own, "field"), firstSentence(service.about)});
                fields += own;
            }
            console.output.write(std::string(group) + "\n");
            table.print(console, "  ");
        }
        console.output.write(counted(services().size(), "service") + ", " +
                             counted(catalogue::resources().size(), "resource") + ", " +
                             counted(fields, "field") + "\n");
    }

    void listResources(Console& console) const
    {
        Table table;
        auto const members = resourcesOf(m_service);
        for (auto const* resource : members) {
            table.add({nameOf(resource), counted(resource->fields.size(), "field"),
                       firstSentence(resource->about)});
        }
        table.print(console);
        console.output.write(counted(members.size(), "resource") + ", " +
                             counted(fieldsOf(members), "field") + "\n");
    }

    void writeJson(Console& console) const
    {
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        writer->startArray();
        if (m_service.empty()) {
            for (auto const service : services()) {
                auto const members = resourcesOf(service);
                writer->entry(json::Members()
                                  .with("fields", json::number(fieldsOf(members)))
                                  .with("resources", json::number(members.size()))
                                  .with("service", service)
                                  .take()
                                  .get());
            }
        } else {
            for (auto const* resource : resourcesOf(m_service)) {
                writer->entry(json::Members()
                                  .with("about", resource->about)
                                  .with("fields", json::number(resource->fields.size()))
                                  .with("resource", nameOf(resource))
                                  .take()
                                  .get());
            }
        }
        writer->endArray();
    }

    static std::size_t fieldsOf(std::vector<catalogue::Resource const*> const& resources)
    {
        std::size_t fields = 0;
        for (auto const* resource : resources) {
            fields += resource->fields.size();
        }
        return fields;
    }

    static std::string firstSentence(std::string_view text)
    {
        std::size_t const end = text.find(". ");
        return std::string(end == std::string_view::npos ? text : text.substr(0, end + 1));
    }

    std::string m_service;
    bool m_names = false;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeListCommand()
{
    return std::make_unique<ListCommand>();
}

} // namespace kiv
