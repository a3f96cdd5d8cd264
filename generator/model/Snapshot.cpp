#include "generator/model/Snapshot.h"

#include "generator/Naming.h"
#include "generator/model/Collection.h"
#include "generator/model/Fields.h"
#include "generator/model/Rows.h"
#include "generator/model/TomlReader.h"
#include "text/Printable.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>

namespace kivgen {
namespace {

// Neither can be the name of a service or of a resource.
constexpr std::string_view releaseTable = "Release";
constexpr std::string_view serviceTable = "service";

std::string releaseOf(Node const& document, SourcePosition const& place, Faults& faults)
{
    Entry const* const table = find(document, releaseTable);
    Entry const* const version = table == nullptr ? nullptr : find(table->value, "version");
    if (version == nullptr) {
        faults.push_back({place, "does not say of which release it is: [Release] with "
                                 "version = \"1.0.0\""});
        return {};
    }
    auto const* const text = textOf(*version, faults);
    return text == nullptr ? std::string() : *text;
}

void readService(Entry const& service, Collection& collection)
{
    collection.checkServiceName(service.key, service.place);
    if (!isTable(service, collection.faults())) {
        return;
    }
    if (find(service.value, serviceTable) == nullptr) {
        collection.faults().push_back(
            {service.place, "has no table [" + kiv::printable(service.key) + ".service]"});
    }
    for (Entry const& table : service.value.table) {
        if (!isTable(table, collection.faults())) {
            continue;
        }
        if (table.key == serviceTable) {
            collection.addService(table.value, service.key, table.place);
        } else {
            collection.addDefinition(table.value, service.key, table.key, table.place);
        }
    }
}

/// A text as TOML spells it in ASCII.
std::string inToml(std::string_view text)
{
    std::ostringstream spelt;
    spelt << '"' << std::hex << std::uppercase << std::setfill('0');
    for (char32_t const character : kiv::decoded(text)) {
        if (character == '"' || character == '\\') {
            spelt << '\\' << static_cast<char>(character);
        } else if (character >= ' ' && character <= '~') {
            spelt << static_cast<char>(character);
        } else {
            spelt << "\\U" << std::setw(8) << static_cast<unsigned long>(character);
        }
    }
    spelt << '"';
    return spelt.str();
}

std::string row(std::string_view key, std::string const& value)
{
    return std::string(key) + " = " + value + '\n';
}

std::string spelt(Target const& target)
{
    return inToml(target.isExternal() ? externalWord : target.service + "::" + target.resource);
}

/// What stands behind the key of a field.
std::string spelt(Field const& field)
{
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    if (traits.table.empty()) {
        return inToml(traits.word);
    }
    std::string targets;
    for (Target const& target : field.targets) {
        targets += (targets.empty() ? "" : ", ") + spelt(target);
    }
    if (field.kind == Kind::Polymorphic) {
        targets = '[' + targets + ']';
    }
    return "{ " + std::string(traits.table) + " = " + targets + " }";
}

std::string textOf(Service const& service)
{
    return "\n[" + service.name + ".service]\n" + row("about", inToml(service.about)) +
           row("group", inToml(service.group));
}

std::string textOf(Resource const& resource)
{
    auto const name = resource.service + '.' + resource.name;
    std::string text = "\n[" + name + "]\n" + row("element", inToml(resource.element)) +
                       row("about", inToml(resource.about));
    if (resource.resourceKey != lowered(resource.name)) {
        text += row("resource_key", inToml(resource.resourceKey));
    }
    if (resource.elementKey != lowered(resource.element)) {
        text += row("element_key", inToml(resource.elementKey));
    }
    std::string fields = '[' + name + ".fields]\n";
    std::string notes;
    for (Field const& field : resource.fields) {
        if (std::ranges::find(commonKeys, field.key) == commonKeys.end()) {
            fields += row(field.key, spelt(field));
        }
        if (!field.note.empty()) {
            notes += row(field.key, inToml(field.note));
        }
    }
    return text + fields + (notes.empty() ? "" : '[' + name + ".notes]\n" + notes);
}

} // namespace

Snapshot loadSnapshot(std::filesystem::path const& file)
{
    auto const name = kiv::printable(file.string());
    Collection collection;
    Snapshot snapshot;
    if (auto const document = readToml(file, name, collection.faults())) {
        snapshot.release = releaseOf(*document, {name}, collection.faults());
        for (Entry const& entry : document->table) {
            if (entry.key != releaseTable) {
                readService(entry, collection);
            }
        }
    }
    snapshot.loaded = collection.finish();
    return snapshot;
}

std::string snapshotOf(Interface const& interface, std::string_view release)
{
    std::string text = "# The definitions of a release, all in one: kiv compat --snapshot wrote "
                       "it.\n[" +
                       std::string(releaseTable) + "]\n" + row("version", inToml(release));
    for (Service const& service : interface.services) {
        text += textOf(service);
        for (Resource const& resource : interface.resources) {
            if (resource.service == service.name) {
                text += textOf(resource);
            }
        }
    }
    return text;
}

} // namespace kivgen
