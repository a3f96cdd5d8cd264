#include "tools/reference/Samples.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "json/JsonWriter.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Html.h"
#include "tools/sample/Sample.h"

#include <algorithm>

namespace reference {

namespace {

using kiv::catalogue::Resource;
using kiv::common::SerializationType;

/// Longer samples hide the shape that they are to show.
constexpr auto mostLines = 120;

std::string jsonOf(kiv::data::Value const& value)
{
    std::string text;
    kiv::Output output(text);
    kiv::json::makeWriter(output, kiv::json::Layout::Indented)->document(&value);
    output.flush();
    return text;
}

/// The resource that a uri names, or null.
Resource const* resourceOf(std::string_view uri)
{
    auto const first = uri.find('/', 1);
    auto const second = first == std::string_view::npos ? first : uri.find('/', first + 1);
    if (second == std::string_view::npos) {
        return nullptr;
    }
    return kiv::catalogue::find(uri.substr(1, first - 1),
                                uri.substr(first + 1, second - first - 1));
}

std::string linkTo(std::string_view uri)
{
    auto const* const resource = uri.starts_with('/') ? resourceOf(uri) : nullptr;
    if (resource == nullptr) {
        return escaped(uri);
    }
    return "<a href=\"" + escaped(addressOf(*resource)) + "\">" + escaped(uri) + "</a>";
}

/// The samples hold no quotes within a text, so every second quote ends one.
std::string withLinks(std::string_view json)
{
    std::string html;
    bool isText = false;
    while (!json.empty()) {
        auto const end = std::min(json.find('"'), json.size());
        auto const part = json.substr(0, end);
        html += isText ? linkTo(part) : escaped(part);
        if (end < json.size()) {
            html += "&quot;";
            isText = !isText;
        }
        json.remove_prefix(std::min(end + 1, json.size()));
    }
    return html;
}

/// What the library makes of a sample of that depth.
std::string elementJson(Resource const& resource, int depth, SerializationType type)
{
    auto const element = resource.makeElement();
    element->deserialize(zel::kiv::sample::sampleOf(resource, depth).get());
    return jsonOf(*element->serialize(type));
}

std::string resourceJson(Resource const& resource, int depth)
{
    kiv::data::Array array;
    array.pushNew(zel::kiv::sample::sampleOf(resource, depth).release());
    auto const collection = resource.makeResource();
    collection->deserialize(&array);
    return jsonOf(*collection->serialize());
}

/// How deep a full sample may go and stay readable.
int depthFor(Resource const& resource)
{
    auto const full = elementJson(resource, 1, SerializationType::Full);
    return std::ranges::count(full, '\n') > mostLines ? 0 : 1;
}

} // namespace

std::vector<Sample> samplesOf(Resource const& resource)
{
    int const depth = depthFor(resource);
    auto const element = [&](int levels, SerializationType type) {
        return withLinks(elementJson(resource, levels, type));
    };
    return {
        {"array", "A resource", "an array: what serialize() of the resource gives",
         withLinks(resourceJson(resource, depth))},
        {"full", "An element, full", "an object: one entry of that array",
         element(depth, SerializationType::Full)},
        {"shallow", "An element, shallow", "nested elements as their uri",
         element(0, SerializationType::Shallow)},
        {"reference", "An element, as a reference", "a text: stands where another element holds it",
         element(0, SerializationType::Reference)},
    };
}

} // namespace reference
