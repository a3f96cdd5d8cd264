#include "diagnostics/WritingTrail.h"

#include "diagnostics/Classes.h"
#include "text/Path.h"

namespace kiv::diagnostics {

namespace common = zel::kiv::common;
using zel::dataformats::data::Value;

WritingTrail& WritingTrail::ofThread()
{
    thread_local WritingTrail trail;
    return trail;
}

void WritingTrail::begin(Receiver& receiver, Call const& call, common::IObjectBase const* element)
{
    m_receiver = &receiver;
    m_call = call;
    m_levels.clear();
    m_levels.push_back({element, {}, {}, {}, 0});
    receiver.onStart(m_call);
}

void WritingTrail::start(Receiver& receiver, common::IObjectBase const& element,
                         common::SerializationType type)
{
    if (m_levels.size() <= 1) {
        begin(receiver, {false, false, resourceOf(element), type, nullptr, 0}, &element);
    }
    ++m_call.elements;
}

void WritingTrail::start(Receiver& receiver, common::IResourceBase const& resource)
{
    begin(receiver,
          {false, true, resourceOf(resource), common::SerializationType::Full, nullptr, 0},
          nullptr);
}

void WritingTrail::startList(std::string_view key)
{
    top().listKey = key;
    top().listIndex = 0;
}

void WritingTrail::enter(std::string_view key, common::IObjectBase const* element)
{
    m_levels.push_back({element, key, {}, {}, 0});
    if (element == nullptr) {
        tellNull(Id::NullElement);
    }
}

void WritingTrail::enterEntry(common::IObjectBase const* entry)
{
    bool const isSlot = m_call.isResource && m_levels.size() == 1;
    m_levels.push_back({entry, top().listKey, top().listIndex++, {}, 0});
    if (entry == nullptr) {
        tellNull(isSlot ? Id::NullSlot : Id::NullElement);
    }
}

void WritingTrail::finish(bool isResource, Value const& result)
{
    if (m_levels.size() == 1 && isResource == m_call.isResource) {
        m_call.value = &result;
        m_receiver->onEnd(m_call);
        m_receiver = nullptr;
    }
}

void WritingTrail::writeReference(Receiver& receiver, common::IObjectBase const& element,
                                  bool hasUri, Value const& result)
{
    start(receiver, element, common::SerializationType::Reference);
    if (!hasUri) {
        Finding finding = here(Fate::Lost, Id::EmptyReference);
        finding.holder = resourceOf(element);
        finding.stands = "an element without a uri, written as a reference";
        finding.becomes = "it comes out as an empty text";
        finding.meant = "set its uri, or write it in full";
        receiver.onFinding(finding);
    }
    finish(false, result);
}

Finding WritingTrail::here(Fate fate, Id id) const
{
    Path path;
    Path pattern;
    std::string_view key;
    for (Level const& level : m_levels) {
        if (!level.key.empty()) {
            key = level.key;
            path.enter(key);
            pattern.enter(key);
        }
        if (level.index) {
            path.enter(*level.index);
            pattern.enter(std::size_t{0});
        }
    }
    Finding finding;
    finding.fate = fate;
    finding.id = id;
    finding.top = m_call.what;
    finding.key = key;
    finding.path = path.text();
    finding.pattern = pattern.text();
    return finding;
}

void WritingTrail::tellNull(Id id)
{
    Finding finding = here(Fate::Forbidden, id);
    auto const* const owner = m_levels[m_levels.size() - 2].element;
    finding.holder = owner == nullptr ? m_call.what : resourceOf(*owner);
    finding.stands = id == Id::NullSlot ? "a slot without an element" : "set, and holds no element";
    finding.becomes = "the library would call through a null pointer";
    finding.meant = id == Id::NullSlot
                        ? "do not write a resource after extractElement, and never add null to it"
                        : "never set or add null";
    m_receiver->onFinding(finding);
}

} // namespace kiv::diagnostics
