#include "tests/model/Model.h"

#include "tests/model/Text.h"

#include "values/values.h"

#include <algorithm>
#include <utility>

namespace model {

namespace {

namespace catalogue = zel::kiv::catalogue;
namespace data = zel::dataformats::data;

using catalogue::Content;
using catalogue::Field;
using catalogue::Kind;
using data::ValueType;

data::Value const* valueUnder(data::Object const& object, std::string_view key)
{
    auto const entry = object.get().find(std::string(key));
    return entry == object.get().end() ? nullptr : static_cast<data::Value const*>(entry->second);
}

std::string const& stringIn(data::Value const& value)
{
    return static_cast<data::String const&>(value).get();
}

std::string plainText(Kind kind, data::Value const& value)
{
    data::Ref const ref(&value);
    switch (catalogue::traitsOf(kind).content) {
    case Content::Integer:
        return textAs<data::Integer>(ref.asInteger());
    case Content::Float:
        return textAs<data::Float>(ref.asFloat());
    case Content::Boolean:
        return textAs<data::Boolean>(ref.asBoolean());
    case Content::String:
    case Content::Object:
        break;
    }
    return textAs<data::String>(ref.asString());
}

/// The uri that a polymorphic field goes by.
std::string uriOf(data::Value const& value)
{
    if (value.getType() == ValueType::String) {
        return stringIn(value);
    }
    if (value.getType() != ValueType::Object) {
        return {};
    }
    auto const* const uri = valueUnder(static_cast<data::Object const&>(value), "uri");
    return uri == nullptr ? std::string() : stringIn(*uri);
}

/// What stands in the uri before the second slash, the first character not counted in any respect;
/// nothing if there are not two.
std::string_view serviceAndResource(std::string_view uri)
{
    int slashes = 0;
    for (std::size_t at = 1; at < uri.size(); ++at) {
        slashes += uri[at] == '/' ? 1 : 0;
        if (slashes == 2) {
            return uri.substr(1, at - 1);
        }
    }
    return {};
}

} // namespace

Choice choose(Field const& field, std::string_view uri)
{
    auto const name = serviceAndResource(uri);
    if (name.empty()) {
        return {};
    }
    for (auto const* const target : field.targets) {
        if (!target->isExternal() &&
            name == std::string(target->service) + '/' + std::string(target->resourceKey)) {
            return {true, target};
        }
    }
    return {std::ranges::count(field.targets, &catalogue::external()) > 0, &catalogue::external()};
}

void Element::read(data::Value const* value)
{
    if (value == nullptr || value->getType() != ValueType::Object) {
        return;
    }
    auto const& object = static_cast<data::Object const&>(*value);
    for (Field const& field : m_resource->fields) {
        if (auto const* const found = valueUnder(object, field.key)) {
            readField(field, *found);
        }
    }
}

void Element::readField(Field const& field, data::Value const& value)
{
    if (!catalogue::isList(field.kind)) {
        readEntry(field, value);
        return;
    }
    if (value.getType() != ValueType::Array) {
        return;
    }
    // The getter of an array is not const, though it changes nothing.
    for (auto const* const entry :
         const_cast<data::Array&>(static_cast<data::Array const&>(value)).get()) {
        if (entry != nullptr) {
            readEntry(field, *entry);
        }
    }
}

void Element::readEntry(Field const& field, data::Value const& value)
{
    if (!catalogue::isNested(field.kind)) {
        hold(field).plain.push_back(plainText(field.kind, value));
        return;
    }
    Choice choice{true, field.targets.front()};
    if (field.kind == Kind::Polymorphic) {
        choice = choose(field, uriOf(value));
    }
    if (choice.made) {
        hold(field).elements.emplace_back(choice.resource).readNested(value);
    }
}

/// Unlike an element on its own, a nested one may be given as its uri.
void Element::readNested(data::Value const& value)
{
    if (value.getType() != ValueType::String) {
        read(&value);
        return;
    }
    setText("uri", stringIn(value));
    std::string service;
    std::string resource;
    std::string id;
    zel::kiv::common::getUriSplitted(stringIn(value), service, resource, id);
    if (!id.empty()) {
        setText("id", id);
    }
}

void Element::setText(std::string_view key, std::string const& text)
{
    hold(*m_resource->find(key)).plain.push_back(textAs<data::String>(text));
}

/// The place for what the field is about to hold: behind what it holds already if it is a list.
Element::Held& Element::hold(Field const& field)
{
    auto place = std::ranges::lower_bound(m_held, field.key, {}, &Held::key);
    if (place == m_held.end() || place->key != field.key) {
        place = m_held.insert(place, {field.key, field.kind, {}, {}});
    } else if (!catalogue::isList(field.kind)) {
        place->plain.clear();
        place->elements.clear();
    }
    return *place;
}

std::string Element::form(NestedForm nested) const
{
    std::string text;
    for (Held const& held : m_held) {
        std::string entries;
        auto const add = [&entries](std::string const& entry) {
            entries += (entries.empty() ? "" : ",") + entry;
        };
        std::ranges::for_each(held.plain, add);
        for (Element const& element : held.elements) {
            add((element.*nested)());
        }
        text += (text.empty() ? "" : ",") + textAs<data::String>(std::string(held.key)) + ':' +
                (catalogue::isList(held.kind) ? '[' + entries + ']' : entries);
    }
    return '{' + text + '}';
}

std::string Element::full() const
{
    return form(&Element::full);
}

std::string Element::shallow() const
{
    return form(&Element::reference);
}

std::string Element::reference() const
{
    auto const uri = std::ranges::find(m_held, "uri", &Held::key);
    return uri == m_held.end() ? "\"\"" : uri->plain.front();
}

void Collection::read(data::Value const* value)
{
    if (value == nullptr || value->getType() != ValueType::Array) {
        return;
    }
    // As above, the getter changes nothing.
    for (auto const* const entry :
         const_cast<data::Array&>(static_cast<data::Array const&>(*value)).get()) {
        m_elements.emplace_back(m_resource).read(entry);
    }
}

std::string Collection::full() const
{
    std::string text;
    for (Element const& element : m_elements) {
        text += (text.empty() ? "" : ",") + element.full();
    }
    return '[' + text + ']';
}

Collection modelOf(catalogue::Resource const& resource, data::Value const* value)
{
    Collection collection(resource);
    collection.read(value);
    return collection;
}

} // namespace model
