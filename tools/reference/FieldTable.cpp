#include "tools/reference/FieldTable.h"

#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Html.h"
#include "tools/reference/KindTexts.h"

#include <algorithm>
#include <set>

namespace reference {

namespace {

using kiv::catalogue::Accessor;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;

/// A signature in three pieces, so that its name can stand out.
Data signatureData(Accessor const& accessor)
{
    auto const name = accessor.signature.find(accessor.name);
    Data data;
    data.set("before", breakable(accessor.signature.substr(0, name)));
    data.set("shownName", breakable(accessor.name));
    data.set("after", breakable(accessor.signature.substr(name + accessor.name.size())));
    return data;
}

/// The names of the accessors, the overloads of a setter once.
List namesData(Field const& field)
{
    List list;
    std::set<std::string_view> named;
    for (Accessor const& accessor : field.accessors) {
        if (named.insert(accessor.name).second) {
            Data data;
            data.set("shownName", breakable(accessor.name));
            list.push_back(std::move(data));
        }
    }
    return list;
}

/// External kinds have one target that the kind names already.
List targetsData(Field const& field)
{
    List list;
    if (field.kind == Kind::External || field.kind == Kind::ExternalList) {
        return list;
    }
    for (Resource const* const target : field.targets) {
        Data data;
        data.set("address", addressOf(*target));
        data.set("class", std::string(target->elementClass));
        data.set("name", breakable(kiv::nameOf(target)));
        data.set("isLastResort", target->isExternal());
        list.push_back(std::move(data));
    }
    return list;
}

Data fieldData(Resource const& resource, Field const& field, Prose const& prose)
{
    List const targets = targetsData(field);
    List signatures;
    for (Accessor const& accessor : field.accessors) {
        signatures.push_back(signatureData(accessor));
    }
    Data data;
    data.set("key", std::string(field.key));
    data.set("shownKey", breakable(field.key));
    data.set("kind", std::string(wordOf(field.kind)));
    data.set("kindAddress", addressOf(field.kind));
    data.set("isNested", isNested(field.kind));
    data.set("ownership", std::string(textsOf(field.kind).ownership));
    data.set("hasTargets", !targets.empty());
    data.set("targets", targets);
    data.set("dropsOthers", field.kind == Kind::Polymorphic && !field.hasLastResort());
    data.set("accessors", namesData(field));
    data.set("signatures", signatures);
    if (!field.note.empty()) {
        data.set("note", prose.htmlOf(field.note, resource.service, &resource));
    }
    return data;
}

} // namespace

bool isCommon(Field const& field)
{
    return kiv::catalogue::external().find(field.key) != nullptr;
}

std::vector<Field const*> fieldsOf(Resource const& resource, bool areCommon)
{
    std::vector<Field const*> fields;
    for (Field const& field : resource.fields) {
        if (isCommon(field) == areCommon) {
            fields.push_back(&field);
        }
    }
    return fields;
}

std::string fieldTable(Resource const& resource, bool areCommon, Templates const& templates,
                       Prose const& prose)
{
    List rows;
    for (Field const* const field : fieldsOf(resource, areCommon)) {
        rows.push_back(fieldData(resource, *field, prose));
    }
    Data data;
    data.set("caption", (areCommon ? "Fields that every element has" : "Fields of ") +
                            (areCommon ? "" : kiv::nameOf(&resource)));
    data.set("isOwn", !areCommon);
    data.set("fields", rows);
    return templates.fill("fields", data);
}

} // namespace reference
