#include "diagnostics/Receiver.h"

#include "diagnostics/ReadingTrail.h"
#include "frame/IObjectBase.h"

#include <atomic>

namespace kiv::diagnostics {

namespace {

std::atomic<Receiver*> everywhere{nullptr};
thread_local Receiver* here = nullptr;

/// An entry is on the trail for as long as this lives.
class Entry {
public:
    Entry(Receiver& receiver, zel::kiv::catalogue::Resource const& resource, std::size_t index,
          std::span<ListPart const> parts)
    {
        ReadingTrail::ofThread().enterEntry(receiver, resource, index, parts);
    }
    Entry(Entry const&) = delete;
    Entry(Entry&&) = delete;
    Entry& operator=(Entry const&) = delete;
    Entry& operator=(Entry&&) = delete;
    ~Entry() { ReadingTrail::ofThread().leave(); }
};

} // namespace

void setReceiver(Receiver* receiver)
{
    everywhere = receiver;
}

Receiver* currentReceiver()
{
    return here != nullptr ? here : everywhere.load(std::memory_order_acquire);
}

Listening::Listening(Receiver& receiver) : m_before(here)
{
    here = &receiver;
}

Listening::~Listening()
{
    here = m_before;
}

std::unique_ptr<zel::kiv::common::IObjectBase>
readEntry(zel::kiv::catalogue::Resource const& resource, std::size_t index,
          zel::dataformats::data::Value const* entry, Receiver& receiver,
          std::span<ListPart const> parts)
{
    Listening const listening(receiver);
    Entry const place(receiver, resource, index, parts);
    auto element = resource.makeElement();
    element->deserialize(entry);
    return element;
}

} // namespace kiv::diagnostics
