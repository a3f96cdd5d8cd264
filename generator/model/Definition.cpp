#include "generator/model/Definition.h"

#include "generator/Naming.h"
#include "generator/model/Fields.h"
#include "generator/model/Forms.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <array>

namespace kivgen {
namespace {

constexpr std::array<std::string_view, 5> knownKeys{"element", "about", "fields", "resource_key",
                                                    "element_key"};
constexpr std::size_t longestAbout = 400; // bytes

/// Reads the rows above the fields.
class Reader {
public:
    Reader(Definition& definition, Faults& faults) : definition_{definition}, faults_{faults} {}

    void read(Node const& document);

private:
    void readElement(Entry const& entry);
    void readAbout(Entry const& entry);
    void readOverride(Entry const& entry, std::string_view className, std::string& key);
    bool isText(Entry const& entry);
    void fail(Place const& place, std::string text) { faults_.push_back({place, std::move(text)}); }

    Definition& definition_;
    Faults& faults_;
};

Entry const* find(Node const& table, std::string_view key)
{
    auto const found = std::ranges::find(table.table, key, &Entry::key);
    return found == table.table.end() ? nullptr : &*found;
}

void Reader::read(Node const& document)
{
    for (Entry const& entry : document.table) {
        if (std::ranges::find(knownKeys, entry.key) != knownKeys.end()) {
            continue;
        }
        auto const meant = kiv::didYouMean(entry.key, knownKeys);
        fail(entry.place,
             "unknown key " + inQuotes(entry.key) +
                 (meant.empty() ? "; a definition has 'element', 'about', [fields] and "
                                  "at need 'resource_key' and 'element_key'"
                                : meant));
    }
    auto& resource = definition_.resource;
    if (auto const* const element = find(document, "element")) {
        readElement(*element);
    } else {
        fail(resource.place, "'element' is missing; it names the element class: element = "
                             "\"PresetObject\"");
    }
    if (auto const* const about = find(document, "about")) {
        readAbout(*about);
    } else {
        fail(resource.place, "'about' is missing; it says in a sentence what the resource is for");
    }
    resource.resourceKey = lowered(resource.name);
    if (auto const* const key = find(document, "resource_key")) {
        definition_.placeOfKey = key->place;
        readOverride(*key, resource.name, resource.resourceKey);
    }
    resource.elementKey = lowered(resource.element);
    if (auto const* const key = find(document, "element_key")) {
        readOverride(*key, resource.element, resource.elementKey);
    }
    if (auto const* const fields = find(document, "fields")) {
        readFields(*fields, definition_, faults_);
    } else {
        fail(resource.place, "[fields] is missing; it stands empty if the element has no fields "
                             "but id, name and uri");
    }
}

bool Reader::isText(Entry const& entry)
{
    if (entry.value.type == Node::Type::Text) {
        return true;
    }
    fail(entry.value.place,
         inQuotes(entry.key) + " takes a string, not " + std::string{entry.value.typeName});
    return false;
}

void Reader::readElement(Entry const& entry)
{
    if (!isText(entry)) {
        return;
    }
    auto const& name = entry.value.text;
    definition_.resource.element = name;
    auto const shown = "the element class " + inQuotes(name);
    if (!hasClassForm(name)) {
        fail(entry.value.place, shown + " must begin with a capital and go on with letters and "
                                        "digits");
    } else if (isReservedClass(name)) {
        fail(entry.value.place, shown + " has a name that the generated code needs");
    } else if (!name.ends_with("Object")) {
        fail(entry.value.place,
             shown + " must end in 'Object', such as " + inQuotes(name + "Object"));
    } else if (name == definition_.resource.name) {
        fail(entry.value.place, shown + " cannot be named as the resource class that it is in");
    }
}

void Reader::readAbout(Entry const& entry)
{
    if (!isText(entry)) {
        return;
    }
    auto const& about = entry.value.text;
    definition_.resource.about = about;
    if (about.find_first_not_of(' ') == std::string::npos) {
        fail(entry.value.place, "'about' is empty; it says in a sentence what the resource is for");
    } else if (about.size() > longestAbout) {
        fail(entry.value.place, "'about' has " + std::to_string(about.size()) +
                                    " bytes; keep it to one or two sentences, at most " +
                                    std::to_string(longestAbout));
    } else if (printable(about) != about || about.find('\\') != std::string::npos) {
        // It becomes a comment, where a backslash at the end would swallow the next line.
        fail(entry.value.place, "'about' must be one line without backslashes and characters that "
                                "cannot be seen: " +
                                    inQuotes(about));
    }
}

void Reader::readOverride(Entry const& entry, std::string_view className, std::string& key)
{
    if (!isText(entry)) {
        return;
    }
    auto const& given = entry.value.text;
    if (!hasKeyForm(given)) {
        fail(entry.value.place,
             "the key " + inQuotes(given) + " must be a letter, then letters and digits");
    } else if (given == lowered(className)) {
        fail(entry.place,
             inQuotes(entry.key) + " is " + inQuotes(given) + " without this row too; remove it");
    }
    key = given;
}

void addImplied(Resource& resource)
{
    for (auto const* const key : {"id", "name", "uri"}) {
        resource.fields.push_back({key, Kind::String, {}, resource.place});
    }
}

} // namespace

Definition readDefinition(Node const& document, std::string const& service, std::string const& name,
                          Place const& file, Faults& faults)
{
    Definition definition;
    definition.placeOfKey = file;
    auto& resource = definition.resource;
    resource.service = service;
    resource.name = name;
    resource.place = file;
    Reader{definition, faults}.read(document);
    addImplied(resource);
    std::ranges::sort(resource.fields, {}, &Field::key);
    return definition;
}

} // namespace kivgen
