#include "tests/model/Samples.h"

#include "frame/IObjectBase.h"
#include "values/values.h"

#include <algorithm>

namespace samples {

namespace {

namespace catalogue = zel::kiv::catalogue;

using catalogue::Content;
using catalogue::Kind;
using zel::kiv::common::IObjectBase;
using zel::kiv::common::SerializationType;

/// A number that belongs to the field and to that place in it.
int numberFor(Field const& field, std::size_t place)
{
    std::size_t number = place;
    for (char const each : field.key) {
        number = number * 31 + static_cast<unsigned char>(each);
    }
    return static_cast<int>(number % 1000000);
}

std::string textFor(Field const& field, std::size_t place)
{
    return std::string(field.key) + " text too long to be kept in place " + std::to_string(place);
}

Resource const* targetOf(Field const& field, std::size_t variant)
{
    return field.targets[variant % field.targets.size()];
}

std::string uriFor(Resource const* target, std::size_t variant)
{
    std::string const name = target->isExternal() ? "elsewhere/things" : nameOf(*target);
    return '/' + name + '/' + std::to_string(variant);
}

/// One value or one entry of a list.
Tree entrySample(Field const& field, std::size_t place, std::size_t variant, int depth)
{
    switch (catalogue::traitsOf(field.kind).content) {
    case Content::String:
        return {textFor(field, place)};
    case Content::Integer:
        return {numberFor(field, place)};
    case Content::Float:
        return {numberFor(field, place) + 0.5};
    case Content::Boolean:
        return {variant % 2 == 0};
    case Content::Object:
        break;
    }
    return sampleOf(targetOf(field, variant), variant + place, depth - 1);
}

/// The element with each nested element in another form.
template <typename Change>
Tree changed(Resource const& resource, Tree const& element, Change change)
{
    auto map = std::get<Tree::Map>(element.content);
    for (Tree::Member& member : map) {
        Kind const kind = resource.find(member.key)->kind;
        if (!catalogue::isNested(kind)) {
            continue;
        }
        if (!catalogue::isList(kind)) {
            member.tree = change(member.tree);
            continue;
        }
        for (Tree& entry : std::get<Tree::List>(member.tree.content)) {
            entry = change(entry);
        }
    }
    return {map};
}

Tree formOf(IObjectBase const& element, SerializationType type)
{
    return model::treeOf(element.serialize(type).get());
}

} // namespace

std::size_t variantsOf(Resource const& resource)
{
    std::size_t most = 1;
    for (Field const& field : resource.fields) {
        most = std::max(most, field.targets.size());
    }
    return most;
}

Tree fieldSample(Field const& field, std::size_t variant, int depth)
{
    if (!catalogue::isList(field.kind)) {
        return entrySample(field, 0, variant, depth);
    }
    return {
        Tree::List{entrySample(field, 1, variant, depth), entrySample(field, 2, variant, depth)}};
}

Tree sampleOf(Resource const* resource, std::size_t variant, int depth)
{
    std::string const uri = uriFor(resource, variant);
    if (resource->isExternal()) {
        return {Tree::Map{
            {"id", {std::string("9")}}, {"name", {std::string("outside")}}, {"uri", {uri}}}};
    }
    Tree::Map map;
    for (Field const& field : resource->fields) {
        if (field.key == "uri") {
            map.push_back({"uri", {uri}});
        } else if (depth > 0 || !catalogue::isNested(field.kind)) {
            map.push_back({std::string(field.key), fieldSample(field, variant, depth)});
        }
    }
    return {map};
}

Tree withUris(Resource const& resource, Tree const& element)
{
    return changed(resource, element, [](Tree const& nested) { return memberOf(nested, "uri"); });
}

Tree withReferences(Resource const& resource, Tree const& element)
{
    return changed(resource, element, [](Tree const& nested) {
        std::string const& uri = std::get<std::string>(nested.content);
        return Tree{Tree::Map{{"id", {uri.substr(uri.rfind('/') + 1)}}, {"uri", {uri}}}};
    });
}

Tree const& memberOf(Tree const& map, std::string_view key)
{
    return std::ranges::find(std::get<Tree::Map>(map.content), key, &Tree::Member::key)->tree;
}

std::unique_ptr<IObjectBase> elementFrom(Resource const& resource, Tree const& tree)
{
    auto element = resource.makeElement();
    element->deserialize(model::valueOf(tree).get());
    return element;
}

Tree fullOf(IObjectBase const& element)
{
    return formOf(element, SerializationType::Full);
}

Tree shallowOf(IObjectBase const& element)
{
    return formOf(element, SerializationType::Shallow);
}

Tree referenceOf(IObjectBase const& element)
{
    return formOf(element, SerializationType::Reference);
}

std::string nameOf(Resource const& resource)
{
    return std::string(resource.service) + '/' + std::string(resource.resourceKey);
}

} // namespace samples
