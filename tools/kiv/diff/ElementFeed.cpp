#include "tools/kiv/diff/ElementFeed.h"

#include "frame/IObjectBase.h"
#include "tools/kiv/check/Checker.h"

#include <utility>

namespace kiv {

namespace {

constexpr std::size_t mostReady = 16;

/// Nobody wants the rest of the file.
struct Stopped {};

} // namespace

ElementFeed::ElementFeed(std::string const& path, DocumentOptions const& options)
    : m_thread([this, path, &options](std::stop_token const& stop) { read(stop, path, options); })
{
}

std::optional<FullElement> ElementFeed::next()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isAtEnd || !m_ready.empty(); });
    if (m_ready.empty()) {
        if (m_fault) {
            std::rethrow_exception(m_fault);
        }
        return std::nullopt;
    }
    FullElement element = std::move(m_ready.front());
    m_ready.pop_front();
    m_changed.notify_all();
    return element;
}

std::vector<Failure> ElementFeed::takeFaults()
{
    std::lock_guard const lock(m_mutex);
    return std::exchange(m_faults, {});
}

void ElementFeed::read(std::stop_token const& stop, std::string const& path,
                       DocumentOptions const& options)
{
    try {
        std::size_t index = 0;
        DocumentHandlers handlers;
        handlers.wantsPlaces = false;
        handlers.onEntry = [&](DocumentEntry const& given) {
            auto const element = readEntry(given, refuseForbidden(given.file), {});
            given.forget();
            give(stop,
                 {&given.resource, index++, element->serialize(common::SerializationType::Full)});
        };
        handlers.onBadLine = [&](Failure const& fault) {
            std::lock_guard const lock(m_mutex);
            m_faults.push_back(fault);
        };
        readDocuments(path, options, handlers);
        end(nullptr);
    } catch (Stopped const&) {
        end(nullptr);
    } catch (...) {
        end(std::current_exception());
    }
}

void ElementFeed::give(std::stop_token const& stop, FullElement element)
{
    std::unique_lock lock(m_mutex);
    if (!m_changed.wait(lock, stop, [this] { return m_ready.size() < mostReady; })) {
        throw Stopped();
    }
    m_ready.push_back(std::move(element));
    m_changed.notify_all();
}

void ElementFeed::end(std::exception_ptr fault)
{
    std::lock_guard const lock(m_mutex);
    m_fault = std::move(fault);
    m_isAtEnd = true;
    m_changed.notify_all();
}

} // namespace kiv
