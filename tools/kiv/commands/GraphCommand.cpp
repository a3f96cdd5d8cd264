#include "tools/kiv/Command.h"
#include "tools/lookup/Links.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <set>

namespace kiv {

namespace {

using catalogue::Resource;

std::string dotQuoted(std::string_view text)
{
    return '"' + std::string(text) + '"'; // names hold neither quotation marks nor backslashes
}

/// `station?` may be of several resources, `bands[]` is a list.
std::string labelOf(catalogue::Field const& field)
{
    std::string const key(field.key);
    if (field.kind == catalogue::Kind::Polymorphic) {
        return key + "?";
    }
    return catalogue::isList(field.kind) ? key + "[]" : key;
}

std::string labelOf(std::vector<catalogue::Field const*> const& fields)
{
    std::string label;
    for (auto const* field : fields) {
        label += (label.empty() ? "" : "\\n") + labelOf(*field);
    }
    return label;
}

void printService(std::string_view service, std::set<Resource const*> const& nodes, Output& output)
{
    std::string lines;
    for (auto const* resource : nodes) {
        if (resource->service == service) {
            lines += "    " + dotQuoted(nameOf(resource)) + "\n";
        }
    }
    if (!lines.empty()) {
        output.write("  subgraph " + dotQuoted("cluster_" + std::string(service)) +
                     " {\n    label=" + dotQuoted(service) + "\n" + lines + "  }\n");
    }
}

void printGraph(std::set<Resource const*> const& nodes, Links const& links, Output& output)
{
    output.write("digraph kiv {\n"
                 "  rankdir=LR\n"
                 "  node [shape=box, fontname=\"Helvetica\", fontsize=11]\n"
                 "  edge [fontname=\"Helvetica\", fontsize=9]\n");
    for (auto const service : services()) {
        printService(service, nodes, output);
    }
    for (auto const& [ends, fields] : links) {
        output.write("  " + dotQuoted(nameOf(ends.first)) + " -> " +
                     dotQuoted(nameOf(ends.second)) + " [label=" + dotQuoted(labelOf(fields)) +
                     "]\n");
    }
    output.write("}\n");
}

class GraphCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "graph"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Write who holds whom as Graphviz text";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv graph radio | dot -Tsvg > radio.svg";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.optional(
            "NAME", m_name,
            "A service or a resource, with its holders and what it holds; without one, "
            "the whole interface. An arrow bears the keys: list[], several-targets?");
    }

    Exit run(Console& console) override
    {
        std::set<Resource const*> nodes = selected();
        Links const links = linksOf(nodes);
        for (auto const& [ends, fields] : links) {
            nodes.insert({ends.first, ends.second});
        }
        printGraph(nodes, links, console.output);
        return Exit::Clean;
    }

private:
    [[nodiscard]] std::set<Resource const*> selected() const
    {
        std::set<Resource const*> resources;
        if (m_name.empty()) {
            for (auto const& resource : catalogue::resources()) {
                resources.insert(&resource);
            }
        } else if (std::ranges::count(services(), m_name) > 0) {
            auto const members = resourcesOf(m_name);
            resources.insert(members.begin(), members.end());
        } else {
            resources.insert(&resourceNamed(m_name));
        }
        return resources;
    }

    std::string m_name;
};

} // namespace

std::unique_ptr<Command> makeGraphCommand()
{
    return std::make_unique<GraphCommand>();
}

} // namespace kiv
