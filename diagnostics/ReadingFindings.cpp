// What is found on the way of reading, in words.

#include "diagnostics/KeyHomes.h"
#include "diagnostics/ReadingTrail.h"
#include "diagnostics/Words.h"
#include "json/TypeNames.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kiv::diagnostics {

namespace {

using common::internal::Plain;
using common::internal::Target;
using common::internal::Targets;

/// By kind, in the order of the enumeration.
constexpr std::array<std::string_view, 4> wantedByKind{"text", "an integer", "a number",
                                                       "true or false"};

std::string wanted(data::Value const* value, std::string_view want)
{
    return std::string(typeName(value)) + " where " + std::string(want) + " is wanted";
}

/// What arrives of a value of another type is for the platform to say.
std::string readAs(Plain kind, data::Value const& value)
{
    data::Ref const ref(&value);
    switch (kind) {
    case Plain::String:
        return quoted(ref.asString());
    case Plain::Bool:
        return ref.asBoolean() ? "true" : "false";
    case Plain::Double:
        return textOf(ref.asFloat());
    case Plain::Int:
        return std::to_string(ref.asInteger());
    }
    return {};
}

/// Whether the platform reads the same number from it either way, 5 from 5.0 and the reverse.
bool isSameNumber(data::Value const& value)
{
    data::Ref const ref(&value);
    try {
        return static_cast<double>(ref.asInteger()) == ref.asFloat();
    } catch (...) {
        return false;
    }
}

bool fits(Plain kind, Type type, data::Value const& value)
{
    switch (kind) {
    case Plain::String:
        return type == Type::Text;
    case Plain::Bool:
        return type == Type::Boolean;
    case Plain::Double:
        return type == Type::Float || (type == Type::Integer && isSameNumber(value));
    case Plain::Int:
        return type == Type::Integer;
    }
    return false;
}

/// The uri of an object, which is empty if it has none that is text.
std::string uriOf(data::Object const& object)
{
    auto const* const uri = valueAt(object, "uri");
    return typeOf(uri) == Type::Text ? textIn(*uri) : std::string();
}

std::string guess(std::string_view word, std::span<std::string_view const> known)
{
    std::string const guessed = didYouMean(word, known);
    return guessed.starts_with("; ") ? guessed.substr(2) : guessed;
}

constexpr std::string_view slashHint = "a uri begins with a slash";
constexpr std::string_view formHint = "a uri has the form /service/resource/id";

} // namespace

/// An element was given no object, or a resource no array.
void ReadingTrail::tellForm(Level const& level)
{
    if (level.resource != nullptr) {
        tell(here(Fate::Lost, Id::WrongForm), wanted(level.value, "an array"),
             "the resource stays as it is", "put the elements in brackets");
        return;
    }
    bool const isOutermost = m_depth == 1;
    std::string const meant =
        !isOutermost && typeOf(level.value) == Type::Text
            ? "a uri can stand for a nested element, not for an entry of the resource"
            : "";
    std::string const stands = wanted(level.value, "an object");
    if (isOutermost) {
        tell(here(Fate::Lost, Id::WrongForm), stands, "the element stays as it is", meant);
        return;
    }
    --m_depth; // the entry's place is one level up
    Finding const finding = here(Fate::Invented, Id::InventedElement);
    ++m_depth;
    tell(finding, stands, "an empty element stands in its place", meant);
}

void ReadingTrail::tellUnknownKeys(Level const& level)
{
    auto known = level.asked.begin();
    eachOf(*level.map, [&](std::string_view key, data::Value const* value) {
        // Both come in ascending order.
        while (known != level.asked.end() && *known < key) {
            ++known;
        }
        if (known == level.asked.end() || *known != key) {
            tellUnknown(level, key, value == nullptr);
        }
    });
}

void ReadingTrail::tellUnknown(Level const& level, std::string_view key, bool isNull)
{
    top().key = key;
    Row const* const row = rowOf(level);
    std::string const home = row == nullptr ? "" : homeOf(*row, key);
    tell(here(isNull ? Fate::Suspect : Fate::Lost, Id::UnknownKey), "no key of " + nameOf(row),
         isNull ? "it is passed over, like every null" : "it is passed over",
         home.empty() ? guess(key, level.asked) : home);
    top().key = {};
}

void ReadingTrail::readPlain(Plain kind, data::Value const& value)
{
    Type const type = typeOf(&value);
    if (fits(kind, type, value)) {
        return;
    }
    std::string const stands = kind == Plain::Double && type == Type::Integer
                                   ? "an integer where a floating-point number is wanted"
                                   : wanted(&value, wantedByKind[static_cast<std::size_t>(kind)]);
    bool const isSame = kind == Plain::Int && type == Type::Float && isSameNumber(value);
    Finding finding = here(isSame ? Fate::Suspect : Fate::Changed, Id::OtherType);
    std::string becomes;
    try {
        becomes = "it reads as " + readAs(kind, value);
    } catch (...) { // the library asks again, and its caller gets to know
        finding.fate = Fate::Lost;
        becomes = "the value library refuses it";
    }
    tell(std::move(finding), stands, becomes);
}

void ReadingTrail::passNoList(data::Value const& value)
{
    tell(here(Fate::Lost, Id::NotAList), wanted(&value, "an array"), "the field is left as it was",
         "put it in brackets: the field is a list");
}

void ReadingTrail::checkUri(Finding finding, std::string const& name, std::string const& uri,
                            bool hasId, Row const* row)
{
    if (name.empty()) {
        tell(std::move(finding),
             uri.find('/') == std::string::npos ? "text that is no uri"
                                                : "a uri of fewer than three parts",
             "it is kept as the uri as it stands, and no id is read from it",
             std::string(formHint));
    } else if (!uri.starts_with('/')) {
        tell(std::move(finding), "a uri without a leading slash", "it is kept as it stands",
             std::string(slashHint));
    } else if (!hasId) {
        tell(std::move(finding), "a uri without an id",
             "it is kept as the uri as it stands, and no id is read from it",
             std::string(formHint));
    } else if (row != nullptr && name != nameOf(row)) {
        finding.id = Id::OtherResource;
        tell(std::move(finding), "a uri of " + name + " where one of " + nameOf(row) + " is wanted",
             "it is taken all the same");
    }
}

void ReadingTrail::tellNoUri(data::Value const& value, data::Object const& object)
{
    std::string stands = "an object without a uri";
    Type const type = typeOf(&value);
    if (type == Type::Text) {
        stands = "a uri of fewer than three parts";
    } else if (type != Type::Object) {
        stands = wanted(&value, "an object or a uri");
    } else if (valueAt(object, "uri") != nullptr) {
        stands = "an object whose uri has fewer than three parts";
    }
    tell(here(Fate::Lost, Id::NoUri), stands, "the field is left as it was",
         "the uri decides what the field holds; it has the form /service/resource/id");
}

void ReadingTrail::choose(data::Value const& value, data::Object const& object,
                          std::string_view resource, Targets const& targets, bool hasLastResort,
                          bool isTaken)
{
    if (top().isRefused) {
        return;
    }
    if (resource.empty()) {
        tellNoUri(value, object);
        return;
    }
    std::vector<std::string> names;
    for (Target const& target : targets) {
        names.emplace_back(target.resource);
    }
    bool const isNamed = std::ranges::find(names, resource) != names.end();
    bool const hasSlash = uriOf(object).starts_with('/');
    if (isNamed) {
        if (!hasSlash) {
            tell(here(Fate::Suspect, Id::OddUri), "a uri without a leading slash",
                 "its first character is passed over", std::string(slashHint));
        } else if (typeOf(&value) == Type::Text && valueAt(object, "id") == nullptr) {
            tell(here(Fate::Suspect, Id::OddUri), "a uri without an id",
                 "it is kept as the uri as it stands, and no id is read from it",
                 std::string(formHint));
        }
        return;
    }
    std::vector<std::string_view> const known(names.begin(), names.end());
    std::string meant = hasSlash ? guess(resource, known) : std::string(slashHint);
    // A reference that was hardly meant to lead outside must not pass for one.
    Fate const fateIfTaken = hasSlash && !meant.empty() ? Fate::Mistaken : Fate::Suspect;
    if (meant.empty()) {
        if (hasLastResort) {
            names.emplace_back("external");
        }
        meant = "the field holds " + listed(names, "or");
    }
    tell(here(isTaken ? fateIfTaken : Fate::Lost, Id::NoTarget),
         "a uri of " + std::string(resource) + ", which the field does not name",
         isTaken ? "it is held as a reference to the outside, with id, name and uri alone"
                 : "the field is left as it was",
         meant);
}

void ReadingTrail::passUri(Receiver& receiver, data::Object const& object, data::Value const* uri)
{
    // A caller may ask for service and resource of an object that nothing is read from.
    Finding finding;
    if (m_depth > 0) {
        finding = here(Fate::Forbidden, Id::UriNoText);
        top().isRefused = true;
    }
    finding.fate = Fate::Forbidden;
    finding.id = Id::UriNoText;
    std::string const end = finding.path.empty() ? "uri" : ".uri";
    finding.path += end;
    finding.pattern += end;
    finding.key = "uri";
    finding.place = {&object, "uri", 0};
    m_receiver = &receiver;
    tell(std::move(finding), wanted(uri, "text"),
         "the library would take it for text without looking",
         "write the uri as text or leave the key out");
}

void ReadingTrail::readNested(data::Value const& value, data::Object const& object)
{
    Type const type = typeOf(&value);
    if (type == Type::Text) {
        m_uri = here(Fate::Suspect, Id::OddUri);
        m_uriName = common::IObjectBase::getServiceAndResourceString(object);
        m_uriText = textIn(value);
        m_uriHasId = valueAt(object, "id") != nullptr;
    } else if (type != Type::Object) {
        tell(here(Fate::Invented, Id::InventedElement), wanted(&value, "an object or a uri"),
             "an empty element stands in its place");
    }
}

} // namespace kiv::diagnostics
