#include "generator/model/Fields.h"

#include "generator/Naming.h"
#include "generator/model/Rows.h"
#include "generator/model/Spelling.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace kivgen {
namespace {

using kiv::didYouMean;
using zel::kiv::catalogue::isList;
using zel::kiv::catalogue::kindOf;
using zel::kiv::catalogue::kinds;
using zel::kiv::catalogue::kindWords;
using zel::kiv::catalogue::traitsOf;

/// Whether a field of that kind is written as a table, since it names what it holds.
constexpr bool needsTable(Kind kind)
{
    return !traitsOf(kind).table.empty();
}

/// The kinds that are, and the keys of their tables.
constexpr auto tableKinds = [] {
    std::array<Kind, std::ranges::count_if(kinds, needsTable)> chosen{};
    std::ranges::copy_if(kinds, chosen.begin(), needsTable);
    return chosen;
}();
constexpr auto tableKeys = [] {
    std::array<std::string_view, tableKinds.size()> keys{};
    std::ranges::transform(tableKinds, keys.begin(),
                           [](Kind kind) { return traitsOf(kind).table; });
    return keys;
}();

/// What other languages call a kind.
struct OtherWord {
    std::string_view word;
    std::string_view kind;
};

constexpr std::array<OtherWord, 21> otherWords{{
    {"array", "string list"},  {"boolean", "bool"}, {"byte", "int"},      {"char", "string"},
    {"enum", "string"},        {"flag", "bool"},    {"float", "double"},  {"integer", "int"},
    {"list", "string list"},   {"long", "int"},     {"number", "double"}, {"real", "double"},
    {"reference", "external"}, {"short", "int"},    {"str", "string"},    {"text", "string"},
    {"uint", "int"},           {"unsigned", "int"}, {"uri", "external"},  {"url", "string"},
    {"uuid", "string"},
}};

class Reader {
public:
    Reader(Definition& definition, Faults& faults) : m_definition{definition}, m_faults{faults} {}

    void readRow(Entry const& row);

private:
    void fail(SourcePosition const& place, std::string text)
    {
        m_faults.push_back({place, std::move(text)});
    }
    bool isKey(Entry const& row);
    void readWord(Node const& value, Field field);
    void readTable(Node const& value, Field field);
    Entry const* targetIn(Node const& value);
    bool isTarget(Node const& value);
    void addTarget(Node const& value, Field& field);
    void readTargets(Node const& value, Field& field);
    void add(Field field) { m_definition.resource.fields.push_back(std::move(field)); }

    Definition& m_definition;
    Faults& m_faults;
};

std::string spelt(std::string_view key, std::string_view target)
{
    return "{ " + std::string{key} + " = \"" + std::string{target} + "\" }";
}

Target targetOf(std::string_view text)
{
    if (text == externalWord) {
        return {};
    }
    auto const colons = text.find("::");
    if (colons == std::string_view::npos) {
        return {std::string{text}, {}};
    }
    return {std::string{text.substr(0, colons)}, std::string{text.substr(colons + 2)}};
}

bool Reader::isKey(Entry const& row)
{
    if (std::ranges::find(commonKeys, row.key) != commonKeys.end()) {
        fail(row.place, "every element has " + inQuotes(row.key) + "; remove the row");
        return false;
    }
    if (!hasKeyForm(row.key)) {
        fail(row.place,
             "the key " + inQuotes(row.key) + " must be a letter, then letters and digits");
        return false;
    }
    return true;
}

void Reader::readRow(Entry const& row)
{
    if (!isKey(row)) {
        return;
    }
    Field field{row.key, Kind::String, {}, row.place, {}};
    if (row.value.type == Node::Type::Text) {
        readWord(row.value, std::move(field));
    } else if (row.value.type == Node::Type::Table) {
        readTable(row.value, std::move(field));
    } else {
        fail(row.value.place,
             "the kind of a field is a string or a table, not " + std::string{row.value.typeName});
    }
}

/// What would be right instead of a word that is no kind.
std::string instead(std::string_view word)
{
    std::string small{word};
    std::ranges::transform(small, small.begin(), [](char each) { return lowered({&each, 1})[0]; });
    if (kindOf(small)) {
        return "; kinds are written in small letters, " + inQuotes(small);
    }
    auto const* const other = std::ranges::find(otherWords, small, &OtherWord::word);
    if (other != otherWords.end()) {
        return "; what it means is " + inQuotes(other->kind) + " here";
    }
    auto meant = didYouMean(word, kindWords);
    if (!meant.empty()) {
        return meant;
    }
    std::vector<std::string> words;
    for (Kind const kind : kinds) {
        if (!needsTable(kind)) {
            words.push_back(inQuotes(wordOf(kind)));
        }
    }
    return "; a word is one of " + kiv::listed(words, "and");
}

/// How a field is written that names what it holds.
std::string asTable(Kind kind)
{
    if (kind == Kind::Polymorphic) {
        return "a polymorphic field names its targets: { polymorphic = [\"service::Resource\", "
               "\"external\"] }";
    }
    return std::string(isList(kind) ? "an element list" : "an element field") +
           " names its target: " + spelt(traitsOf(kind).table, "service::Resource");
}

void Reader::readWord(Node const& value, Field field)
{
    auto const kind = kindOf(value.text);
    if (!kind && value.text.find("::") != std::string::npos) {
        fail(value.place, inQuotes(value.text) + " is no kind; a field that holds an element is " +
                              spelt(traitsOf(Kind::Element).table, "service::Resource"));
    } else if (!kind) {
        fail(value.place, "unknown kind " + inQuotes(value.text) + instead(value.text));
    } else if (needsTable(*kind)) {
        fail(value.place, asTable(*kind));
    } else {
        field.kind = *kind;
        if (zel::kiv::catalogue::isNested(*kind)) {
            field.targets.emplace_back();
        }
        add(std::move(field));
    }
}

Entry const* Reader::targetIn(Node const& value)
{
    std::vector<std::string> words;
    std::ranges::transform(tableKeys, std::back_inserter(words), inQuotes);
    std::string const choice = "one of " + kiv::listed(words, "and");
    if (value.table.empty()) {
        fail(value.place, "the table names no target; it takes " + choice);
    }
    Entry const* chosen = nullptr;
    for (Entry const& entry : value.table) {
        if (std::ranges::find(tableKeys, entry.key) == tableKeys.end()) {
            auto const meant = didYouMean(entry.key, tableKeys);
            fail(entry.place, "unknown key " + inQuotes(entry.key) +
                                  (meant.empty() ? "; the table takes " + choice : meant));
        } else if (chosen == nullptr) {
            chosen = &entry;
        } else {
            fail(entry.place, inQuotes(entry.key) + " stands beside " + inQuotes(chosen->key) +
                                  "; a field is of one kind");
        }
    }
    return chosen;
}

void Reader::readTable(Node const& value, Field field)
{
    Entry const* const chosen = targetIn(value);
    if (chosen == nullptr) {
        return;
    }
    field.kind =
        *std::ranges::find(tableKinds, chosen->key, [](Kind kind) { return traitsOf(kind).table; });
    if (field.kind == Kind::Polymorphic) {
        readTargets(chosen->value, field);
        add(std::move(field));
        return;
    }
    if (chosen->value.text == externalWord) {
        Kind const meant = isList(field.kind) ? Kind::ExternalList : Kind::External;
        fail(chosen->value.place, "this field is written " + kiv::inDoubleQuotes(wordOf(meant)));
    } else if (isTarget(chosen->value)) {
        addTarget(chosen->value, field);
    }
    add(std::move(field));
}

bool Reader::isTarget(Node const& value)
{
    if (value.type == Node::Type::Text) {
        return true;
    }
    fail(value.place,
         "a target is a string, \"service::Resource\", not " + std::string{value.typeName});
    return false;
}

void Reader::addTarget(Node const& value, Field& field)
{
    field.targets.push_back(targetOf(value.text));
    if (value.text != externalWord) {
        m_definition.uses.push_back({value.place, value.text});
    }
}

void Reader::readTargets(Node const& value, Field& field)
{
    if (value.type != Node::Type::List) {
        fail(value.place,
             "'polymorphic' takes an array of targets, not " + std::string{value.typeName});
        return;
    }
    if (value.list.size() < 2 && m_definition.isWhole) {
        fail(value.place, "a polymorphic field has two targets or more");
    }
    std::map<std::string_view, SourcePosition> seen;
    for (Node const& target : value.list) {
        if (!isTarget(target)) {
            continue;
        }
        auto const [first, isNew] = seen.try_emplace(target.text, target.place);
        if (isNew) {
            addTarget(target, field);
        } else {
            m_faults.push_back({target.place,
                                "the target " + inQuotes(target.text) +
                                    " stands here a second time; keep one of the two",
                                {{first->second, "it stands here first"}}});
        }
    }
}

} // namespace

void readFields(Entry const& fields, Definition& definition, Faults& faults)
{
    if (!isTable(fields, faults)) {
        return;
    }
    checkOrder(fields.value, faults);
    Reader reader{definition, faults};
    for (Entry const& row : fields.value.table) {
        definition.keys.insert(row.key);
        reader.readRow(row);
    }
}

} // namespace kivgen
