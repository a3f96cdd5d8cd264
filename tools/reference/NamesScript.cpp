#include "json/JsonWriter.h"
#include "json/Make.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/FieldTable.h"
#include "tools/reference/Pages.h"

#include <array>
#include <set>

namespace reference {

namespace {

using kiv::catalogue::Accessor;
using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;
using kiv::catalogue::Service;
using kiv::json::array;
using kiv::json::text;
using Rows = std::unique_ptr<kiv::data::Array>;

/// No name, or one.
Rows rowOf(std::string_view name = {})
{
    auto row = std::make_unique<kiv::data::Array>();
    if (!name.empty()) {
        row->pushNew(text(name).release());
    }
    return row;
}

Rows namesOf(Field const& field)
{
    Rows rows = rowOf();
    std::set<std::string_view> named;
    for (Accessor const& accessor : field.accessors) {
        if (named.insert(accessor.name).second) {
            rows->pushNew(text(accessor.name).release());
        }
    }
    return rows;
}

/// Fields that all elements have are left out, unless there is something to say of one.
Rows rowsOf(Resource const& resource)
{
    Rows rows = rowOf();
    for (Field const& field : resource.fields) {
        if (!isCommon(field) || !field.note.empty()) {
            auto row =
                array(text(field.key), text(wordOf(field.kind)), text(field.note), namesOf(field));
            rows->pushNew(row.release());
        }
    }
    return rows;
}

Rows rowsOf(Service const& service)
{
    Rows rows = rowOf();
    for (Resource const& resource : service.resources) {
        auto row = array(text(resource.resourceKey), text(resource.name), text(resource.element),
                         text(resource.elementKey), text(resource.about), rowsOf(resource));
        rows->pushNew(row.release());
    }
    return rows;
}

/// What can be searched beside services, resources and their fields.
class Others {
public:
    void add(std::string_view name, std::string_view sort, std::string_view address,
             std::string_view about = {}, Rows names = rowOf())
    {
        auto row = array(text(name), text(sort), text(address), text(about), std::move(names));
        m_rows->pushNew(row.release());
    }

    Rows take() { return std::move(m_rows); }

private:
    Rows m_rows = rowOf();
};

void addFrame(Others& others, Type const& type)
{
    std::string const address = "frame.html#" + type.name;
    bool const isExternal = type.name == kiv::catalogue::external().element;
    others.add(type.name, "frame", address, {}, isExternal ? rowOf("external") : rowOf());
    for (Value const& value : type.values) {
        others.add(value.name, "frame", address + '.' + value.name, {},
                   rowOf(type.name + "::" + value.name));
    }
    for (Operation const& operation : type.operations) {
        others.add(operation.name, "frame", address + '.' + operation.name, {},
                   rowOf(type.name + "::" + operation.name));
    }
}

Rows othersOf(Sources const& sources)
{
    Others others;
    for (auto const& [address, name] : guides) {
        others.add(name, "page", address);
    }
    others.add("Link", "page", "frame.html#link", "How to link, with CMake and pkg-config");
    others.add("Who owns what", "page", "frame.html#ownership", "Ownership of values and elements");
    others.add("Fields of every element", "page", "frame.html#common-fields");
    for (Type const& type : sources.frame) {
        addFrame(others, type);
    }
    for (Kind const kind : kiv::catalogue::kinds) {
        others.add(wordOf(kind), "kind", addressOf(kind));
    }
    for (Field const& field : kiv::catalogue::external().fields) {
        others.add(field.key, "common field", "frame.html#" + std::string(field.key), {},
                   namesOf(field));
    }
    return others.take();
}

} // namespace

std::string namesScript(Sources const& sources)
{
    Rows services = rowOf();
    for (Service const& service : kiv::catalogue::services()) {
        auto row = array(text(service.name), text(service.about), rowsOf(service));
        services->pushNew(row.release());
    }
    kiv::data::Object names;
    names.setNew("others", othersOf(sources).release());
    names.setNew("services", services.release());
    std::string script = "'use strict';\nconst names = ";
    kiv::Output output(script);
    kiv::json::makeWriter(output, kiv::json::Layout::Compact)->document(&names);
    output.flush();
    return script;
}

} // namespace reference
