#include "tools/reference/Graph.h"

#include "Lookup.h"

#include <algorithm>
#include <map>
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

/// The fields by which one resource holds another.
struct Link {
    std::vector<std::string> keys;
    bool onlyPolymorphic = true;
};

/// Resources compare by their place in the catalogue, so that the picture is always the same.
using Ends = std::pair<Resource const*, Resource const*>;
using Links = std::map<Ends, Link>;

void addLinks(Resource const& holder, std::string_view service, Links& links)
{
    for (Field const& field : holder.fields) {
        for (Resource const* const target : field.targets) {
            bool const concerns =
                target != nullptr && (holder.service == service || target->service == service);
            if (!concerns) {
                continue;
            }
            Link& link = links[{&holder, target}];
            link.keys.push_back(std::string(field.key) + (isList(field.kind) ? "[]" : ""));
            link.onlyPolymorphic = link.onlyPolymorphic && field.kind == Kind::Polymorphic;
        }
    }
}

std::string nodeText(Resource const& resource, std::string_view service)
{
    std::string const name = kiv::nameOf(&resource);
    bool const isOutside = resource.service != service;
    return "  " + quoted(name) +
           " [label=" + quoted(isOutside ? name : std::string(resource.resourceKey)) +
           ", URL=" + quoted("#" + name) + ", tooltip=" + quoted(name) +
           ", id=" + quoted("graph/" + std::string(service) + "/" + name) +
           ", class=" + (isOutside ? "outside" : "inside") + "];\n";
}

std::string edgeText(Ends const& ends, Link const& link, std::string_view service)
{
    std::string label;
    std::string all;
    for (std::size_t place = 0; place < link.keys.size(); ++place) {
        all += (place > 0 ? ", " : "") + link.keys[place];
        if (place < keysShown) {
            label += (place > 0 ? "\n" : "") + link.keys[place];
        }
    }
    if (link.keys.size() > keysShown) {
        label += "\n+ " + std::to_string(link.keys.size() - keysShown);
    }
    std::string const from = kiv::nameOf(ends.first);
    std::string const to = kiv::nameOf(ends.second);
    return "  " + quoted(from) + " -> " + quoted(to) + " [label=" + quoted(label) +
           ", edgetooltip=" + quoted(all) + ", labeltooltip=" + quoted(all) +
           ", id=" + quoted("graph/" + std::string(service) + "/" + from + "-" + to) +
           (link.onlyPolymorphic ? ", class=maybe, style=dashed" : "") + "];\n";
}

/// What ` name="…"` says first, or nothing.
std::string attributeOf(std::string const& text, std::string const& name)
{
    std::string const start = ' ' + name + "=\"";
    auto const place = text.find(start);
    if (place == std::string::npos) {
        return {};
    }
    auto const value = place + start.size();
    return text.substr(value, text.find('"', value) - value);
}

/// Takes every ` name="…"` out of the text.
void dropAttribute(std::string& text, std::string const& name)
{
    std::string const start = ' ' + name + "=\"";
    for (auto place = text.find(start); place != std::string::npos; place = text.find(start)) {
        auto const end = text.find('"', place + start.size());
        text.erase(place, end + 1 - place);
    }
}

} // namespace

std::string graphOf(std::string_view service)
{
    Links links;
    for (Resource const& resource : kiv::catalogue::resources()) {
        addLinks(resource, service, links);
    }
    if (links.empty()) {
        return {};
    }
    std::set<Resource const*> nodes;
    std::string edges;
    for (auto const& [ends, link] : links) {
        nodes.insert({ends.first, ends.second});
        edges += edgeText(ends, link, service);
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
