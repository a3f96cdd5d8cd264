#include "tools/reference/ResourcePage.h"

#include "tools/lookup/Lookup.h"
#include "tools/reference/Forms.h"
#include "tools/reference/KindTexts.h"
#include "tools/reference/Snippet.h"

#include <algorithm>

namespace reference {

namespace {

using kiv::catalogue::Accessor;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;

Data text(std::string_view words)
{
    return {std::string(words)};
}

/// A signature in three pieces, so that its name can stand out.
Data accessorData(Accessor const& accessor)
{
    auto const name = accessor.signature.find(accessor.name);
    Data data;
    data.set("before", breakable(accessor.signature.substr(0, name)));
    data.set("name", text(accessor.name));
    data.set("after", breakable(accessor.signature.substr(name + accessor.name.size())));
    return data;
}

Data targetData(Field const& field, Resource const* target)
{
    Data data;
    data.set("name", kiv::nameOf(target));
    data.set("isExternal", target->isExternal());
    data.set("isLast", target->isExternal() && field.kind == Kind::Polymorphic);
    data.set("class", text(target->elementClass));
    return data;
}

bool isCommon(Field const& field)
{
    return kiv::catalogue::external().find(field.key) != nullptr;
}

/// External kinds have one target that the kind names already.
bool showsTargets(Field const& field)
{
    return isNested(field.kind) && field.kind != Kind::External && field.kind != Kind::ExternalList;
}

Data fieldData(Resource const& resource, Field const& field)
{
    List targets;
    if (showsTargets(field)) {
        for (Resource const* const target : field.targets) {
            targets.push_back(targetData(field, target));
        }
    }
    List accessors;
    for (Accessor const& each : field.accessors) {
        accessors.push_back(accessorData(each));
    }
    std::string const word(wordOf(field.kind));
    Data data;
    data.set("place", kiv::nameOf(&resource) + '/' + std::string(field.key));
    data.set("key", text(field.key));
    data.set("isCommon", isCommon(field));
    data.set("kind", word);
    data.set("kindAnchor", anchorOf(field.kind));
    data.set("ownership", text(textsOf(field.kind).ownership));
    data.set("hasTargets", !targets.empty());
    data.set("targets", targets);
    data.set("accessors", accessors);
    return data;
}

List holdersData(Resource const& resource)
{
    List holders;
    for (auto const& [holder, field] : kiv::holdersOf(resource)) {
        Data data;
        data.set("name", kiv::nameOf(holder));
        data.set("key", text(field->key));
        holders.push_back(std::move(data));
    }
    return holders;
}

} // namespace

std::string resourcePart(Resource const& resource, Templates const& templates)
{
    List fields;
    for (Field const& field : resource.fields) {
        fields.push_back(fieldData(resource, field));
    }
    List const holders = holdersData(resource);
    Forms const forms = formsOf(resource);
    Data data;
    data.set("name", kiv::nameOf(&resource));
    data.set("service", text(resource.service));
    data.set("class", text(resource.name));
    data.set("element", text(resource.element));
    data.set("resourceKey", text(resource.resourceKey));
    data.set("elementKey", text(resource.elementKey));
    data.set("about", text(resource.about));
    data.set("header", text(resource.header));
    data.set("fields", fields);
    data.set("isHeld", !holders.empty());
    data.set("holders", holders);
    data.set("full", forms.full);
    data.set("shallow", forms.shallow);
    data.set("reference", forms.reference);
    data.set("snippet", snippetOf(resource));
    return templates.fill("resource", data);
}

} // namespace reference
