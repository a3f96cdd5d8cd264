#include "tools/kiv/schema/Schema.h"

#include "json/Make.h"
#include "text/Phrases.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <limits>
#include <set>
#include <string>

namespace kiv::schema {

namespace {

using catalogue::Content;
using catalogue::Kind;
using catalogue::Resource;
using json::ValuePointer;

using Schema = json::Members;

constexpr std::string_view dialect = "https://json-schema.org/draft/2020-12/schema";
/// What the library takes for service and resource lies between the first character and the third
/// slash.
constexpr std::string_view anyUri = "^/[^/]*/[^/]*/";

/// Resources are named with a dot here: a slash would have to be escaped in references.
std::string definitionOf(Resource const* resource)
{
    return resource->isExternal()
               ? nameOf(resource)
               : std::string(resource->service) + "." + std::string(resource->resourceKey);
}

ValuePointer typed(std::string_view type)
{
    return Schema().with("type", type).take();
}

Schema referenceTo(Resource const* resource)
{
    Schema schema;
    schema.with("$ref", "#/$defs/" + definitionOf(resource));
    return schema;
}

/// A null is passed over wherever a field or an entry of a list may stand.
ValuePointer orNull(std::string_view type)
{
    return json::array(json::text(type), json::text("null"));
}

/// One value or one entry of a list, `target` being what an object is read as.
Schema entrySchema(Content content, Resource const* target)
{
    Schema schema;
    switch (content) {
    case Content::String:
        schema.with("type", orNull("string"));
        break;
    case Content::Integer:
        schema.with("type", orNull("integer"))
            .with("minimum", json::number(std::numeric_limits<int>::min()))
            .with("maximum", json::number(std::numeric_limits<int>::max()));
        break;
    case Content::Float:
        schema.with("type", orNull("number"));
        break;
    case Content::Boolean:
        schema.with("type", orNull("boolean"));
        break;
    case Content::Object:
        schema.with("anyOf",
                    json::array(typed("string"), typed("null"), referenceTo(target).take()));
        break;
    }
    return schema;
}

/// A list of which nothing is read leaves its field unset, and does not come out again.
Schema listOf(Schema entry)
{
    Schema schema;
    schema.with("type", orNull("array"))
        .with("items", entry.take())
        .with("minItems", json::number(1))
        .with("contains", Schema().with("not", typed("null")).take());
    return schema;
}

ValuePointer uriText(std::string_view pattern)
{
    return json::Members().with("type", "string").with("pattern", pattern).take();
}

ValuePointer uriProperty(std::string_view pattern)
{
    return json::Members().with("uri", uriText(pattern)).take();
}

std::string patternOf(Resource const& target)
{
    return "^/" + nameOf(&target) + "/";
}

/// Which target an object is read as: the first that its uri names, or else what is tried last.
ValuePointer dispatch(std::span<Resource const* const> targets, bool hasLastResort)
{
    auto const end =
        std::ranges::find_if(targets, [](Resource const* target) { return !target->isExternal(); });
    if (end == targets.end()) {
        return hasLastResort ? referenceTo(&catalogue::external()).take() : nullptr;
    }
    Schema isNamed;
    isNamed.with("type", "object")
        .with("properties", uriProperty(patternOf(**end)))
        .with("required", json::array(json::text("uri")));
    Schema schema;
    schema.with("if", isNamed.take()).with("then", referenceTo(*end).take());
    auto const rest = targets.subspan(static_cast<std::size_t>(end - targets.begin()) + 1);
    if (ValuePointer otherwise = dispatch(rest, hasLastResort)) {
        schema.with("else", std::move(otherwise));
    }
    return schema.take();
}

/// A text or an object, whose uri must name a target. What is wrong is said of the uri first: a
/// choice between targets would leave a reader alone with what is wrong in each.
Schema polymorphic(catalogue::Field const& field)
{
    std::string names;
    for (auto const* target : field.targets) {
        if (!target->isExternal()) {
            names += (names.empty() ? "" : "|") + nameOf(target);
        }
    }
    std::string const pattern = field.hasLastResort() ? std::string(anyUri) : "^/(" + names + ")/";
    Schema isObject;
    isObject.with("if", typed("object"))
        .with("then", dispatch(field.targets, field.hasLastResort()));
    Schema schema;
    schema.with("type", json::array(json::text("object"), json::text("string"), json::text("null")))
        .with("pattern", pattern)
        .with("properties", uriProperty(pattern))
        .with("required", json::array(json::text("uri")))
        .with("allOf", json::array(isObject.take()));
    return schema;
}

Schema schemaFor(catalogue::Field const& field)
{
    if (field.kind == Kind::Polymorphic) {
        return polymorphic(field);
    }
    auto const* const target = field.targets.empty() ? nullptr : field.targets.front();
    Schema one = entrySchema(traitsOf(field.kind).content, target);
    return isList(field.kind) ? listOf(std::move(one)) : std::move(one);
}

std::string descriptionOf(catalogue::Field const& field)
{
    std::string const targets = listed(targetNames(field), "or");
    auto const kind =
        std::string(catalogue::wordOf(field.kind)) + (targets.empty() ? "" : ": " + targets);
    return field.note.empty() ? kind : std::string(field.note) + " (" + kind + ")";
}

Schema elementWith(std::unique_ptr<data::Object> properties)
{
    Schema schema;
    schema.with("type", "object")
        .with("properties", std::move(properties))
        .with("additionalProperties", json::boolean(false));
    return schema;
}

ValuePointer elementOf(Resource const& resource)
{
    auto properties = std::make_unique<data::Object>();
    for (auto const& field : resource.fields) {
        properties->setNew(
            std::string(field.key).c_str(),
            schemaFor(field).with("description", descriptionOf(field)).take().release());
    }
    return elementWith(std::move(properties))
        .with("title", nameOf(&resource))
        .with("description", resource.about)
        .take();
}

using Reached = std::set<Resource const*>;

void reach(Resource const* resource, Reached& reached)
{
    if (!reached.insert(resource).second) {
        return;
    }
    for (auto const& field : resource->fields) {
        for (auto const* target : field.targets) {
            reach(target, reached);
        }
    }
}

std::unique_ptr<data::Object> definitions(Reached const& reached)
{
    auto all = std::make_unique<data::Object>();
    for (auto const* resource : reached) {
        all->setNew(definitionOf(resource).c_str(), elementOf(*resource).release());
    }
    return all;
}

Schema documentOf(Resource const& resource)
{
    Schema schema;
    schema.with("type", "array").with("items", referenceTo(&resource).take());
    return schema;
}

} // namespace

std::unique_ptr<data::Value> ofResource(Resource const& resource)
{
    Reached reached;
    reach(&resource, reached);
    return documentOf(resource)
        .with("$schema", dialect)
        .with("$defs", definitions(reached))
        .with("title", nameOf(&resource))
        .with("description", resource.about)
        .take();
}

std::unique_ptr<data::Value> ofInterface()
{
    Reached reached;
    for (auto const& resource : catalogue::resources()) {
        reach(&resource, reached);
    }
    auto all = definitions(reached);
    for (auto const& resource : catalogue::resources()) {
        all->setNew((definitionOf(&resource) + ".document").c_str(),
                    documentOf(resource).take().release());
    }
    return Schema().with("$schema", dialect).with("$defs", std::move(all)).take();
}

} // namespace kiv::schema
