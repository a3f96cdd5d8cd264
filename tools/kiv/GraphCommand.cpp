#include "Command.h"
#include "Lookup.h"

#include <map>
#include <set>
#include <utility>

namespace kiv {

namespace {

using catalogue::Resource;

/// Who holds whom, in the order of the catalogue.
using Ends = std::pair<Resource const*, Resource const*>;

std::string inQuotes(std::string_view text)
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

class Graph {
public:
    void add(Resource const& resource) { m_nodes.insert(&resource); }

    void add(Resource const& holder, Resource const& held, catalogue::Field const& field)
    {
        add(holder);
        add(held);
        std::string& label = m_edges[{&holder, &held}];
        label += (label.empty() ? "" : "\\n") + labelOf(field);
    }

    void print(Output& output) const
    {
        output.write("digraph kiv {\n"
                     "  rankdir=LR\n"
                     "  node [shape=box, fontname=\"Helvetica\", fontsize=11]\n"
                     "  edge [fontname=\"Helvetica\", fontsize=9]\n");
        for (auto const service : services()) {
            printService(service, output);
        }
        for (auto const& [ends, label] : m_edges) {
            output.write("  " + inQuotes(nameOf(ends.first)) + " -> " +
                         inQuotes(nameOf(ends.second)) + " [label=" + inQuotes(label) + "]\n");
        }
        output.write("}\n");
    }

private:
    void printService(std::string_view service, Output& output) const
    {
        std::string nodes;
        for (auto const* resource : m_nodes) {
            if (resource->service == service) {
                nodes += "    " + inQuotes(nameOf(resource)) + "\n";
            }
        }
        if (!nodes.empty()) {
            output.write("  subgraph " + inQuotes("cluster_" + std::string(service)) +
                         " {\n    label=" + inQuotes(service) + "\n" + nodes + "  }\n");
        }
    }

    std::set<Resource const*> m_nodes;
    std::map<Ends, std::string> m_edges;
};

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
        Graph graph;
        std::set<Resource const*> const wanted = selected();
        for (auto const* resource : wanted) {
            graph.add(*resource);
        }
        for (auto const& holder : catalogue::resources()) {
            for (auto const& field : holder.fields) {
                for (auto const* held : field.targets) {
                    bool const isAsked = wanted.contains(&holder) || wanted.contains(held);
                    if (held != nullptr && isAsked) {
                        graph.add(holder, *held, field);
                    }
                }
            }
        }
        graph.print(console.output);
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
        } else if (m_name.find('/') != std::string::npos) {
            resources.insert(&resourceNamed(m_name));
        } else {
            auto const members = resourcesOf(m_name);
            resources.insert(members.begin(), members.end());
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
