// What is found of uris, in words.

#include "diagnostics/ReadingTrail.h"
#include "diagnostics/Words.h"
#include "json/TypeNames.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <utility>

namespace kiv::diagnostics {

namespace {

using common::internal::Target;
using common::internal::Targets;

/// The uri of an object, which is empty if it has none that is text.
std::string uriOf(data::Object const& object)
{
    auto const* const uri = valueAt(object, "uri");
    return typeOf(uri) == Type::Text ? textIn(*uri) : std::string();
}

/// What was meant by the name of a resource that the interface has not, if one slip leads to it.
std::string meantBy(std::string_view name)
{
    std::vector<std::string> meant;
    for (zel::kiv::catalogue::Resource const& resource : zel::kiv::catalogue::resources()) {
        std::string known = nameOf(&resource);
        if (known == name) {
            return {};
        }
        if (isOneSlip(name, known)) {
            meant.push_back(std::move(known));
        }
    }
    return guess(name, std::vector<std::string_view>(meant.begin(), meant.end()));
}

constexpr std::string_view asReference =
    "it is held as a reference to the outside, with id, name and uri alone";
constexpr std::string_view slashHint = "a uri begins with a slash";
constexpr std::string_view formHint = "a uri has the form /service/resource/id";

} // namespace

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
    } else if (std::string meant = row == nullptr ? meantBy(name) : ""; !meant.empty()) {
        finding.fate = Fate::Mistaken;
        finding.id = Id::NoTarget;
        tell(std::move(finding), "a uri of " + name + ", which is no resource",
             std::string(asReference), std::move(meant));
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
    m_isChosen = isTaken;
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
    if (meant.empty() && isTaken) {
        meant = meantBy(resource);
    }
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
         isTaken ? std::string(asReference) : "the field is left as it was", meant);
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
