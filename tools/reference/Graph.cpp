#include "tools/reference/Graph.h"

#include "tools/lookup/Links.h"
#include "tools/lookup/Lookup.h"

#include "tools/reference/Address.h"
#include "tools/reference/Html.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

namespace reference {

namespace {

using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;

/// Longer lists of keys would crowd the picture; the tooltip has them all.
constexpr std::size_t keysShown = 3;

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (char const each : text) {
        if (each == '"' || each == '\\') {
            result += '\\';
        }
        result += each;
    }
    return result + '"';
}

std::string nodeText(Resource const& resource, std::string_view service)
{
    std::string const name = kiv::nameOf(&resource);
    bool const isOutside = resource.service != service;
    return "  " + quoted(name) +
           " [label=" + quoted(isOutside ? name : std::string(resource.resourceKey)) +
           ", URL=" + quoted(addressOf(resource)) + ", tooltip=" + quoted(name) +
           ", id=" + quoted("graph/" + std::string(service) + "/" + name) +
           ", class=" + (isOutside ? "outside" : "inside") + "];\n";
}

std::string edgeText(kiv::Ends const& ends, std::vector<Field const*> const& fields,
                     std::string_view service)
{
    std::string label;
    std::string all;
    for (std::size_t place = 0; place < fields.size(); ++place) {
        std::string const key =
            std::string(fields[place]->key) + (isList(fields[place]->kind) ? "[]" : "");
        all += (place > 0 ? ", " : "") + key;
        if (place < keysShown) {
            label += (place > 0 ? "\n" : "") + key;
        }
    }
    if (fields.size() > keysShown) {
        label += "\n+ " + std::to_string(fields.size() - keysShown);
    }
    bool const isPolymorphic = std::all_of(fields.begin(), fields.end(), [](Field const* field) {
        return field->kind == Kind::Polymorphic;
    });
    std::string const from = kiv::nameOf(ends.first);
    std::string const to = kiv::nameOf(ends.second);
    return "  " + quoted(from) + " -> " + quoted(to) + " [label=" + quoted(label) +
           ", edgetooltip=" + quoted(all) + ", labeltooltip=" + quoted(all) +
           ", id=" + quoted("graph/" + std::string(service) + "/" + from + "-" + to) +
           (isPolymorphic ? ", class=maybe, style=dashed" : "") + "];\n";
}

} // namespace

std::string graphOf(std::string_view service)
{
    auto const members = kiv::resourcesOf(service);
    kiv::Links const links = kiv::linksOf({members.begin(), members.end()});
    if (links.empty()) {
        return {};
    }
    std::set<Resource const*> nodes;
    std::string edges;
    for (auto const& [ends, fields] : links) {
        nodes.insert({ends.first, ends.second});
        edges += edgeText(ends, fields, service);
    }
    std::string text =
        "digraph " + quoted(service) + " {\n  id=" + quoted("graph/" + std::string(service)) + R"(
  rankdir=LR
  bgcolor=transparent
  nodesep=0.18
  ranksep=0.45
  node [shape=box, style=rounded, height=0.32, margin="0.16,0.05", fontname="Helvetica", fontsize=11]
  edge [arrowsize=0.6, fontname="Helvetica", fontsize=9]
)";
    for (Resource const* const node : nodes) {
        text += nodeText(*node, service);
    }
    return text + edges + "}\n";
}

std::string inlined(std::string const& svg)
{
    auto const start = svg.find("<svg");
    if (start == std::string::npos) {
        throw std::runtime_error("a picture that Graphviz wrote holds no <svg>");
    }
    std::string text = svg.substr(start);
    std::string const width = attributeOf(text, "width");
    // Colours, fonts and size are for the style sheet to say.
    for (auto const* const name : {"fill", "stroke", "font-family", "width", "height"}) {
        dropAttribute(text, name);
    }
    return text.insert(std::string_view("<svg").size(), " style=\"--width: " + width + '"');
}

} // namespace reference
