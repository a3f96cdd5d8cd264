#pragma once

#include "tools/kiv/Documents.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace kiv {

/// An element as the library reads it.
struct FullElement {
    catalogue::Resource const* resource;
    std::size_t index; ///< its place among the elements of the file
    std::unique_ptr<data::Value> value;
};

/// The elements of a file one by one, for who reads two files side by side. A thread of its own
/// reads the file, and waits when it is some elements ahead.
class ElementFeed {
public:
    /// `options` must outlive the feed.
    ElementFeed(std::string const& path, DocumentOptions const& options);
    ElementFeed(ElementFeed const&) = delete;
    ElementFeed& operator=(ElementFeed const&) = delete;
    ~ElementFeed() = default;

    /// The next element; none at the end. Throws what reading the file threw.
    std::optional<FullElement> next();

    /// What was wrong with lines that were left out so far, each told once.
    std::vector<Failure> takeFaults();

private:
    void read(std::stop_token const& stop, std::string const& path, DocumentOptions const& options);
    void give(std::stop_token const& stop, FullElement element);
    void end(std::exception_ptr fault);

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::deque<FullElement> m_ready;
    bool m_isAtEnd = false;
    std::exception_ptr m_fault;
    std::vector<Failure> m_faults; ///< of single lines
    std::jthread m_thread;         ///< the last member, so that it ends before the others do
};

} // namespace kiv
