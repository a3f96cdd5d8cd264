// What the frame's notices are in the library that tells: they go to the trail of the thread.

#include "frame/internal/Notices.h"

#include "diagnostics/ReadingTrail.h"
#include "diagnostics/WritingTrail.h"

using kiv::diagnostics::currentReceiver;
using kiv::diagnostics::ReadingTrail;
using kiv::diagnostics::Receiver;
using kiv::diagnostics::WritingTrail;

namespace zel::kiv::common::internal::notice {

namespace {

/// The trail that reading has got to, or null if nobody is told of it.
ReadingTrail* reading()
{
    ReadingTrail& trail = ReadingTrail::ofThread();
    return trail.isActive() ? &trail : nullptr;
}

WritingTrail* writing()
{
    WritingTrail& trail = WritingTrail::ofThread();
    return trail.isActive() ? &trail : nullptr;
}

} // namespace

Reading::Reading(IObjectBase const& element, Value const* value) : m_isHeard(false)
{
    if (Receiver* const receiver = currentReceiver()) {
        ReadingTrail::ofThread().enter(*receiver, element, value);
        m_isHeard = true;
    }
}

Reading::Reading(IResourceBase const& resource, Value const* value) : m_isHeard(false)
{
    if (Receiver* const receiver = currentReceiver()) {
        ReadingTrail::ofThread().enter(*receiver, resource, value);
        m_isHeard = true;
    }
}

Reading::~Reading()
{
    if (m_isHeard) {
        ReadingTrail::ofThread().leave();
    }
}

void Reading::done() const
{
    if (m_isHeard) {
        ReadingTrail::ofThread().finish();
    }
}

void readsFields(Map const& map)
{
    if (auto* const trail = reading()) {
        trail->startFields(map);
    }
}

void asks(std::string_view key)
{
    if (auto* const trail = reading()) {
        trail->ask(key);
    }
}

void passesNull()
{
    if (auto* const trail = reading()) {
        trail->passNull();
    }
}

void reads(Plain kind, Value const& value)
{
    if (auto* const trail = reading()) {
        trail->readPlain(kind, value);
    }
}

void passesNoList(Value const& value)
{
    if (auto* const trail = reading()) {
        trail->passNoList(value);
    }
}

void readsList(Value const* list)
{
    if (auto* const trail = reading()) {
        trail->startList(list);
    }
}

void readsEntry(Value const* entry)
{
    if (auto* const trail = reading()) {
        trail->startEntry(entry);
    }
}

void endsList()
{
    if (auto* const trail = reading()) {
        trail->endList();
    }
}

void readsNested(Value const& value, Object const& object)
{
    if (auto* const trail = reading()) {
        trail->readNested(value, object);
    }
}

void chooses(Value const& value, Object const& object, std::string_view resource,
             Targets const& targets, Handover<IObjectBase> const* lastResort,
             Handover<IObjectBase> const* target)
{
    if (auto* const trail = reading()) {
        trail->choose(value, object, resource, targets, lastResort != nullptr, target != nullptr);
    }
}

bool passesUri(Object const& object, Value const* uri)
{
    Receiver* const receiver = currentReceiver();
    if (receiver == nullptr || ::kiv::typeOf(uri) == ::kiv::Type::Text) {
        return false;
    }
    ReadingTrail::ofThread().passUri(*receiver, object, uri);
    return true;
}

Writing::Writing(char const* key, IObjectBase const* element) : m_isHeard(false)
{
    if (auto* const trail = writing()) {
        trail->enter(key, element);
        m_isHeard = true;
    }
}

Writing::Writing(IObjectBase const* entry) : m_isHeard(false)
{
    if (auto* const trail = writing()) {
        trail->enterEntry(entry);
        m_isHeard = true;
    }
}

Writing::~Writing()
{
    if (m_isHeard) {
        WritingTrail::ofThread().leave();
    }
}

void writes(IObjectBase const& element, SerializationType type)
{
    if (Receiver* const receiver = currentReceiver()) {
        WritingTrail::ofThread().start(*receiver, element, type);
    }
}

void writes(IResourceBase const& resource)
{
    if (Receiver* const receiver = currentReceiver()) {
        WritingTrail::ofThread().start(*receiver, resource);
    }
}

void writesList(char const* key)
{
    if (auto* const trail = writing()) {
        trail->startList(key);
    }
}

void writesReference(IObjectBase const& element, std::string const& uri, Value const& result)
{
    if (Receiver* const receiver = currentReceiver()) {
        WritingTrail::ofThread().writeReference(*receiver, element, !uri.empty(), result);
    }
}

void wroteElement(Value const& result)
{
    if (auto* const trail = writing()) {
        trail->finish(false, result);
    }
}

void wroteArray(Value const& result)
{
    if (auto* const trail = writing()) {
        trail->finish(true, result);
    }
}

} // namespace zel::kiv::common::internal::notice
