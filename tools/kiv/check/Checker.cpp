#include "tools/kiv/check/Checker.h"

#include "json/TypeNames.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"
#include "tools/kiv/Console.h"
#include "tools/kiv/check/Reading.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kiv {

namespace {

using catalogue::Kind;
using data::ValueType;

bool isText(data::Value const& value)
{
    return value.getType() == ValueType::String;
}

std::string wanted(data::Value const* value, std::string_view want)
{
    return std::string(typeName(value)) + " where " + std::string(want) + " is wanted";
}

std::vector<std::string_view> keysOf(catalogue::Resource const* resource)
{
    std::vector<std::string_view> keys;
    for (auto const& field : resource->fields) {
        keys.push_back(field.key);
    }
    return keys;
}

data::Value const* valueAt(data::Object const& object, std::string const& key)
{
    auto const found = object.get().find(key);
    return found == object.get().end() ? nullptr : static_cast<data::Value const*>(found->second);
}

std::string withoutMark(std::string const& suggestion)
{
    return suggestion.starts_with("; ") ? suggestion.substr(2) : suggestion;
}

std::string slashHint(std::string const& uri)
{
    return uri.starts_with('/') ? "" : "a uri begins with a slash";
}

/// Why the library sees no service and resource in a value of a polymorphic field.
std::string noNameReason(data::Value const& value)
{
    if (isText(value)) {
        return "a uri of fewer than three parts";
    }
    if (value.getType() != ValueType::Object) {
        return wanted(&value, traitsOf(Kind::Polymorphic).wanted);
    }
    bool const hasUri = valueAt(static_cast<data::Object const&>(value), "uri") != nullptr;
    return hasUri ? "an object whose uri has fewer than three parts" : "an object without a uri";
}

std::string uriOf(data::Value const& value)
{
    if (isText(value)) {
        return textOf(value);
    }
    if (value.getType() != ValueType::Object) {
        return {};
    }
    auto const* const uri = valueAt(static_cast<data::Object const&>(value), "uri");
    return uri == nullptr ? std::string() : textOf(*uri);
}

} // namespace

Checker::Checker(json::Places const& places, FindingHandler const& report)
    : m_places(places), m_report(report)
{
}

void Checker::check(catalogue::Resource const& resource, json::Entry const& entry)
{
    if (entry.value == nullptr || entry.value->getType() != ValueType::Object) {
        Path path;
        path.enter(entry.index);
        std::string const meant =
            entry.value != nullptr && isText(*entry.value)
                ? "a uri can stand for a nested element, not for an entry of the resource"
                : "";
        m_report({Fate::Invented, entry.position, path.text(),
                  wanted(entry.value.get(), "an object"), "an empty element stands in its place",
                  meant});
        return;
    }
    ElementWalk(*this).walkEntry(resource, entry.index, entry.value.get());
}

void Checker::onElement(Path const& path, catalogue::Resource const* resource,
                        data::Object const& object)
{
    checkRepeats(path, m_places.below(object));
    checkKeys(path, resource, object);
    if (!resource->isExternal()) {
        checkOwnUri(path, *resource, object);
    }
}

void Checker::checkRepeats(Path const& path, std::span<json::Places::Place const> places)
{
    std::unordered_map<std::string_view, json::Places::Place const*> last;
    for (auto const& place : places) {
        auto const [entry, isFirst] = last.try_emplace(place.key, &place);
        if (isFirst) {
            continue;
        }
        Path key = path;
        key.enter(place.key);
        m_report({Fate::Lost, entry->second->keyPosition, key.text(),
                  "a key that stands here again in line " + std::to_string(place.keyPosition.line),
                  "only the last value counts", ""});
        entry->second = &place;
    }
}

void Checker::checkKeys(Path const& path, catalogue::Resource const* resource,
                        data::Object const& object)
{
    std::vector<std::string_view> const known = keysOf(resource);
    for (auto const& entry : object.get()) {
        if (std::binary_search(known.begin(), known.end(), std::string_view(entry.first))) {
            continue;
        }
        auto const* const place = m_places.find(object, entry.first);
        Path key = path;
        key.enter(entry.first);
        bool const isNull = entry.second == nullptr;
        m_report({isNull ? Fate::Suspect : Fate::Lost, place->keyPosition, key.text(),
                  "no key of " + nameOf(resource),
                  isNull ? "it is passed over, like every null" : "it is passed over",
                  withoutMark(didYouMean(entry.first, known))});
    }
}

/// An element's own uri is read like any text, whatever it names.
void Checker::checkOwnUri(Path const& path, catalogue::Resource const& resource,
                          data::Object const& object)
{
    auto const* const uri = valueAt(object, "uri");
    if (uri == nullptr || !isText(*uri)) {
        return;
    }
    Path key = path;
    key.enter("uri");
    checkUri(key, &resource, textOf(*uri), m_places.find(object, "uri")->position);
}

void Checker::onField(Path const& path, catalogue::Field const& field, data::Object const& holder,
                      data::Value const& value)
{
    json::Position const position = m_places.find(holder, field.key)->position;
    if (catalogue::isList(field.kind)) {
        checkList(path, field, value, position);
    } else if (!catalogue::isNested(field.kind)) {
        checkPlain(path, field.kind, value, position);
    } else if (field.kind != Kind::Polymorphic) {
        checkNested(path, field.targets.front(), value, position);
    }
}

void Checker::checkList(Path const& path, catalogue::Field const& field, data::Value const& value,
                        json::Position position)
{
    if (value.getType() != ValueType::Array) {
        m_report({Fate::Lost, position, path.text(), wanted(&value, "an array"),
                  "the field stays unset",
                  "put it in brackets: the field is a list (" +
                      std::string(catalogue::wordOf(field.kind)) + ")"});
        return;
    }
    auto const entries = m_places.below(value);
    // The getter of an array is not const, though it changes nothing.
    auto& list = const_cast<data::Array&>(static_cast<data::Array const&>(value)).get();
    if (std::all_of(list.begin(), list.end(), [](auto const* each) { return each == nullptr; })) {
        m_report({Fate::Lost, position, path.text(),
                  entries.empty() ? "an empty list" : "a list of nothing but nulls",
                  "the field stays unset, and the list does not come out again", ""});
    }
}

void Checker::checkPlain(Path const& path, Kind kind, data::Value const& value,
                         json::Position position)
{
    Fit const fit = fitOf(kind, value);
    if (fit == Fit::Exact) {
        return;
    }
    m_report({fit == Fit::Rounded ? Fate::Suspect : Fate::Changed, position, path.text(),
              wanted(&value, traitsOf(kind).wanted), "it reads as " + readAs(kind, value), ""});
}

void Checker::checkNested(Path const& path, catalogue::Resource const* target,
                          data::Value const& value, json::Position position)
{
    if (value.getType() == ValueType::Object) {
        return;
    }
    if (isText(value)) {
        checkUri(path, target, textOf(value), position);
        return;
    }
    m_report({Fate::Invented, position, path.text(), wanted(&value, traitsOf(Kind::Element).wanted),
              "an empty element stands in its place", ""});
}

void Checker::checkUri(Path const& path, catalogue::Resource const* target, std::string const& uri,
                       json::Position position)
{
    std::string const name = serviceAndResourceOf(data::String(uri));
    if (name.empty()) {
        m_report({Fate::Suspect, position, path.text(),
                  uri.find('/') == std::string::npos ? "text that is no uri"
                                                     : "a uri of fewer than three parts",
                  "it is kept as the uri as it stands, and no id is read from it",
                  "a uri has the form /service/resource/id"});
    } else if (!uri.starts_with('/')) {
        m_report({Fate::Suspect, position, path.text(), "a uri without a leading slash",
                  "it is kept as it stands", slashHint(uri)});
    } else if (!target->isExternal() && name != nameOf(target)) {
        m_report({Fate::Suspect, position, path.text(),
                  "a uri of " + name + " where one of " + nameOf(target) + " is wanted",
                  "it is taken all the same", ""});
    }
}

void Checker::onEntry(Path const& path, catalogue::Field const& field, data::Array& list,
                      std::size_t index, data::Value const& value)
{
    json::Position const position = m_places.below(list)[index].position;
    if (catalogue::isNested(field.kind)) {
        checkNested(path, field.targets.front(), value, position);
    } else {
        checkPlain(path, traitsOf(field.kind).entry, value, position);
    }
}

void Checker::onDispatch(Path const& path, Dispatch const& dispatch)
{
    json::Position const position = m_places.find(dispatch.holder, dispatch.field.key)->position;
    if (dispatch.name.empty()) {
        m_report({Fate::Lost, position, path.text(), noNameReason(dispatch.value),
                  "the field stays unset",
                  "the uri decides what the field holds; it has the form /service/resource/id"});
        return;
    }
    std::string const uri = uriOf(dispatch.value);
    if (dispatch.target != nullptr) {
        if (!uri.starts_with('/')) {
            m_report({Fate::Suspect, position, path.text(), "a uri without a leading slash",
                      "its first character is passed over", slashHint(uri)});
        }
        return;
    }
    bool const taken = dispatch.field.hasLastResort();
    m_report({taken ? Fate::Suspect : Fate::Lost, position, path.text(),
              "a uri of " + dispatch.name + ", which the field does not name",
              taken ? "it is held as a reference to the outside, with id, name and uri alone"
                    : "the field stays unset",
              slashHint(uri).empty()
                  ? "the field holds " + listed(targetNames(dispatch.field), "or")
                  : slashHint(uri)});
}

void Checker::onForbiddenUri(Path const& path, data::Object const& holder, data::Value const* uri)
{
    m_report({Fate::Forbidden, m_places.find(holder, "uri")->position, path.text(),
              wanted(uri, "text"), "the library would take it for text without looking",
              "write the uri as text or leave the key out"});
}

} // namespace kiv
