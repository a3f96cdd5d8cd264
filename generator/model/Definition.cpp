#include "generator/model/Definition.h"

#include "generator/Naming.h"
#include "generator/model/Fields.h"
#include "generator/model/Rows.h"
#include "generator/model/Spelling.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <array>

namespace kivgen {
namespace {

constexpr std::array<std::string_view, 6> knownKeys{"element", "about",        "fields",
                                                    "notes",   "resource_key", "element_key"};
constexpr std::size_t longestAbout = 400; // bytes
constexpr std::size_t longestNote = 300;
constexpr auto saysOfAbout = "it says in a sentence or two what one element is";

/// Reads the rows above the fields.
class Reader {
public:
    Reader(Definition& definition, Faults& faults) : m_definition{definition}, m_faults{faults} {}

    void read(Node const& document);

private:
    void readElement(Entry const& entry);
    void readAbout(Entry const& entry);
    void readNotes(Entry const& entry);
    void readOverride(Entry const& entry, std::string_view className, std::string& key);
    void fail(SourcePosition const& place, std::string text)
    {
        m_faults.push_back({place, std::move(text)});
    }

    /// Of a file that could not be read whole nobody knows what is missing.
    void miss(std::string_view what, std::string_view says)
    {
        if (m_definition.isWhole) {
            std::string text(what);
            text += " is missing; ";
            text += says;
            fail(m_definition.resource.place, std::move(text));
        }
    }

    Definition& m_definition;
    Faults& m_faults;
};

void Reader::read(Node const& document)
{
    m_definition.isWhole = document.isWhole;
    checkKeys(document, knownKeys,
              "; a definition has 'element', 'about', [fields] and at need [notes], "
              "'resource_key' and 'element_key'",
              m_faults);
    auto& resource = m_definition.resource;
    for (Entry const& row : document.table) {
        resource.rows.emplace(row.key, row.place);
    }
    if (auto const* const element = find(document, "element")) {
        readElement(*element);
    } else {
        miss("'element'", "it names the element class: element = \"PresetObject\"");
    }
    if (auto const* const about = find(document, "about")) {
        readAbout(*about);
    } else {
        miss("'about'", saysOfAbout);
    }
    resource.resourceKey = lowered(resource.name);
    if (auto const* const key = find(document, "resource_key")) {
        m_definition.placeOfKey = key->place;
        readOverride(*key, resource.name, resource.resourceKey);
    }
    resource.elementKey = lowered(resource.element);
    if (auto const* const key = find(document, "element_key")) {
        readOverride(*key, resource.element, resource.elementKey);
    }
    if (auto const* const fields = find(document, "fields")) {
        readFields(*fields, m_definition, m_faults);
    } else {
        miss("[fields]", "it stands empty if the element has no fields but id, name and uri");
    }
    std::ranges::sort(resource.fields, {}, &Field::key);
    if (auto const* const notes = find(document, "notes")) {
        readNotes(*notes);
    }
}

void Reader::readElement(Entry const& entry)
{
    auto const* const text = textOf(entry, m_faults);
    if (text == nullptr) {
        return;
    }
    auto const& name = *text;
    m_definition.resource.element = name;
    m_definition.placeOfElement = entry.value.place;
    auto const shown = "the element class " + inQuotes(name);
    if (!hasClassForm(name)) {
        fail(entry.value.place, shown + " must begin with a capital and go on with letters and "
                                        "digits");
    } else if (isReservedClass(name)) {
        fail(entry.value.place, shown + " has a name that the generated code needs");
    } else if (!name.ends_with("Object")) {
        fail(entry.value.place,
             shown + " must end in 'Object', such as " + inQuotes(name + "Object"));
    } else if (name == m_definition.resource.name) {
        fail(entry.value.place, shown + " cannot be named as the resource class that it is in");
    }
}

void Reader::readAbout(Entry const& entry)
{
    auto about = readProse(entry, {"'about'", saysOfAbout, longestAbout}, m_faults);
    m_definition.resource.about = about.text;
    m_definition.prose.push_back(std::move(about));
}

void Reader::readNotes(Entry const& entry)
{
    if (!isTable(entry, m_faults)) {
        return;
    }
    checkOrder(entry.value, m_faults);
    std::size_t wrong = 0;
    for (Entry const& row : entry.value.table) {
        auto const shown = inQuotes(row.key);
        if (m_definition.isWhole && !m_definition.keys.contains(row.key)) {
            std::vector<std::string_view> known;
            if (++wrong <= mostSuggestions) {
                known.assign(m_definition.keys.begin(), m_definition.keys.end());
            }
            // A key that is refused is a name here too, with whatever bytes it has.
            fail(row.place, "a note on " + shown + ", which is no key of this element" +
                                printable(kiv::didYouMean(row.key, known)));
        }
        auto note = readProse(
            row, {"the note on " + shown, "it says in a sentence what the field is", longestNote},
            m_faults);
        auto& fields = m_definition.resource.fields;
        auto const field = std::ranges::lower_bound(fields, row.key, {}, &Field::key);
        if (field != fields.end() && field->key == row.key) { // else it has no row, or a faulty one
            field->note = note.text;
        }
        m_definition.prose.push_back(std::move(note));
    }
}

void Reader::readOverride(Entry const& entry, std::string_view className, std::string& key)
{
    auto const* const text = textOf(entry, m_faults);
    if (text == nullptr) {
        return;
    }
    auto const& given = *text;
    if (!hasKeyForm(given)) {
        fail(entry.value.place,
             "the key " + inQuotes(given) + " must be a letter, then letters and digits");
    } else if (given == lowered(className)) {
        fail(entry.place,
             inQuotes(entry.key) + " is " + inQuotes(given) + " without this row too; remove it");
    }
    key = given;
}

void addImplied(Definition& definition)
{
    for (auto const* const key : commonKeys) {
        definition.keys.emplace(key);
        definition.resource.fields.push_back(
            {key, Kind::String, {}, definition.resource.place, {}});
    }
}

} // namespace

Definition readDefinition(Node const& document, std::string const& service, std::string const& name,
                          SourcePosition const& file, Faults& faults)
{
    Definition definition;
    definition.placeOfKey = file;
    auto& resource = definition.resource;
    resource.service = service;
    resource.name = name;
    resource.place = file;
    addImplied(definition);
    Reader{definition, faults}.read(document);
    return definition;
}

} // namespace kivgen
