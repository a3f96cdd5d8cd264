#include "diagnostics/ReadingTrail.h"

#include "diagnostics/Classes.h"
#include "text/Path.h"

#include <algorithm>
#include <utility>

namespace kiv::diagnostics {

ReadingTrail& ReadingTrail::ofThread()
{
    thread_local ReadingTrail trail;
    return trail;
}

ReadingTrail::Level& ReadingTrail::push(Receiver& receiver)
{
    if (m_depth == 0) {
        m_elements = 0;
        m_uri.reset();
    }
    m_receiver = &receiver;
    if (m_levels.size() == m_depth) {
        m_levels.emplace_back();
    }
    Level& level = m_levels[m_depth++];
    auto asked = std::move(level.asked); // keeps its memory
    asked.clear();
    level = Level();
    level.asked = std::move(asked);
    return level;
}

void ReadingTrail::enter(Receiver& receiver, common::IObjectBase const& element,
                         data::Value const* value)
{
    bool const isFromUri = m_depth > 0 && m_uri.has_value();
    if (m_depth == 0) {
        receiver.onStart({true, false, resourceOf(element), {}, value, 0});
    } else if (isFromUri) {
        Finding finding = std::move(*m_uri);
        m_uri.reset();
        checkUri(std::move(finding), m_uriName, m_uriText, m_uriHasId, resourceOf(element));
    }
    Level& level = push(receiver);
    level.element = &element;
    level.value = value;
    level.isFromUri = isFromUri;
    level.isChosen = std::exchange(m_isChosen, false);
    ++m_elements;
}

void ReadingTrail::enter(Receiver& receiver, common::IResourceBase const& resource,
                         data::Value const* value)
{
    receiver.onStart({true, true, resourceOf(resource), {}, value, 0});
    Level& level = push(receiver);
    level.resource = &resource;
    level.value = value;
}

void ReadingTrail::enterEntry(Receiver& receiver, Row const& resource, std::size_t index,
                              std::span<ListPart const> parts)
{
    Level& level = push(receiver);
    level.row = &resource;
    level.index = index;
    level.parts = parts;
}

/// What there is to know of the list that the element of an entry has under its key.
ListPart const* ReadingTrail::partOfList() const
{
    constexpr std::size_t depthOfElement = 2; // below the entry
    if (m_depth != depthOfElement) {
        return nullptr;
    }
    auto const parts = m_levels.front().parts;
    auto const part = std::ranges::find(parts, m_levels[1].key, &ListPart::key);
    return part == parts.end() ? nullptr : &*part;
}

void ReadingTrail::finish()
{
    Level& level = top();
    level.key = {};
    level.index.reset();
    bool const isRead = level.element != nullptr ? level.map != nullptr : level.isReadAsList;
    if (!isRead) {
        tellForm(level);
    } else if (level.map != nullptr) {
        tellUnknownKeys(level);
        checkOwnUri(level);
    }
    if (m_depth == 1) {
        m_receiver->onEnd(
            {true, level.resource != nullptr, rowOf(level), {}, level.value, m_elements});
    }
}

/// An element's own uri is read like any text, whatever it names.
void ReadingTrail::checkOwnUri(Level const& level)
{
    auto const& object = static_cast<data::Object const&>(*level.value);
    auto const* const uri = valueAt(object, "uri");
    if (level.isFromUri || level.isChosen || typeOf(uri) != Type::Text) {
        return;
    }
    auto const* const row = rowOf(level);
    std::string const name = common::IObjectBase::getServiceAndResourceString(object);
    bool const hasSlash = textIn(*uri).starts_with('/');
    // A reference to the outside may have a uri of any form.
    if (row != nullptr ? name != nameOf(row) || !hasSlash : hasSlash && !name.empty()) {
        top().key = "uri";
        checkUri(here(Fate::Suspect, Id::OddUri), name, textIn(*uri), true, row);
        top().key = {};
    }
}

void ReadingTrail::ask(std::string_view key)
{
    Level& level = top();
    level.asked.push_back(key);
    level.key = key;
    level.isRefused = false;
}

void ReadingTrail::passNull()
{
    tell(here(Fate::Suspect, Id::NullValue), "null",
         "it is passed over: the field is left as it was");
}

void ReadingTrail::startList(data::Value const* list)
{
    Level& level = top();
    level.isReadAsList = true;
    level.list = list != nullptr ? list : level.value;
    level.index.reset();
    level.part = partOfList();
    level.taken = level.part != nullptr && level.part->hasTaken ? 1 : 0;
}

void ReadingTrail::startEntry(data::Value const* entry)
{
    Level& level = top();
    level.index = level.index ? *level.index + 1 : 0;
    if (entry != nullptr) {
        ++level.taken;
    } else if (level.resource == nullptr) {
        tell(here(Fate::Suspect, Id::NullEntry), "null",
             "it is passed over, and the entries after it move up");
    }
}

void ReadingTrail::endList()
{
    Level& level = top();
    auto const* const part = std::exchange(level.part, nullptr);
    bool const isEmpty = !level.index && (part == nullptr || part->first == 0);
    bool const isWhole = part == nullptr || part->isLast;
    level.index.reset();
    level.list = nullptr;
    if (level.resource == nullptr && level.taken == 0 && isWhole) {
        tell(here(Fate::Lost, Id::EmptyList),
             isEmpty ? "an empty list" : "a list of nothing but nulls",
             "the field is left as it was, and the list does not come out again");
    }
}

ReadingTrail::Row const* ReadingTrail::rowOf(Level const& level)
{
    if (level.element != nullptr) {
        return resourceOf(*level.element);
    }
    return level.resource != nullptr ? resourceOf(*level.resource) : level.row;
}

Finding ReadingTrail::here(Fate fate, Id id) const
{
    Path path;
    Path pattern;
    std::string_view firstKey;
    for (std::size_t i = 0; i < m_depth; ++i) {
        Level const& level = m_levels[i];
        firstKey = firstKey.empty() ? level.key : firstKey;
        if (!level.key.empty()) {
            path.enter(level.key);
            pattern.enter(level.key);
        }
        if (level.index) {
            path.enter(*level.index + (level.part != nullptr ? level.part->first : 0));
            pattern.enter(std::size_t{0});
        }
    }
    Level const& last = m_levels[m_depth - 1];
    Finding finding;
    finding.fate = fate;
    finding.id = id;
    finding.top = rowOf(m_levels.front());
    finding.holder = rowOf(last);
    finding.firstKey = firstKey;
    finding.key = last.key;
    finding.path = path.text();
    finding.pattern = pattern.text();
    if (last.index) {
        finding.place = {last.list, {}, *last.index};
    } else if (!last.key.empty()) {
        finding.place = {last.value, last.key, 0};
    }
    return finding;
}

void ReadingTrail::tell(Finding finding, std::string stands, std::string becomes, std::string meant)
{
    finding.stands = std::move(stands);
    finding.becomes = std::move(becomes);
    finding.meant = std::move(meant);
    m_receiver->onFinding(finding);
}

} // namespace kiv::diagnostics
