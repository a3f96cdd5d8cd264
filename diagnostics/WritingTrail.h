#pragma once

#include "diagnostics/Receiver.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace kiv::diagnostics {

/// The way of this thread from the element or resource that was asked for its value to the one that
/// is written just now, and what is found on it.
class WritingTrail {
public:
    static WritingTrail& ofThread();

    /// Nobody says when a call ends with an exception, but what is not nested begins a new one.
    void start(Receiver& receiver, zel::kiv::common::IObjectBase const& element,
               zel::kiv::common::SerializationType type);
    void start(Receiver& receiver, zel::kiv::common::IResourceBase const& resource);
    void startList(std::string_view key);
    void enter(std::string_view key, zel::kiv::common::IObjectBase const* element);
    void enterEntry(zel::kiv::common::IObjectBase const* entry);
    void leave() { m_levels.pop_back(); }
    /// The value of an element, or of a resource, is complete.
    void finish(bool isResource, zel::dataformats::data::Value const& result);
    void writeReference(Receiver& receiver, zel::kiv::common::IObjectBase const& element,
                        bool hasUri, zel::dataformats::data::Value const& result);

    /// Whether a call is under way.
    [[nodiscard]] bool isActive() const { return m_receiver != nullptr; }

private:
    using Row = zel::kiv::catalogue::Resource;

    /// An element that is written, where it stands in the one above it, and the list in it that is
    /// written just now.
    struct Level {
        zel::kiv::common::IObjectBase const* element = nullptr;
        std::string_view key;
        std::optional<std::size_t> index;
        std::string_view listKey;
        std::size_t listIndex = 0;
    };

    Level& top() { return m_levels.back(); }
    void begin(Receiver& receiver, Call const& call, zel::kiv::common::IObjectBase const* element);
    [[nodiscard]] Finding here(Fate fate, Id id) const;
    void tellNull(Id id);

    Receiver* m_receiver = nullptr;
    Call m_call{};
    std::vector<Level> m_levels; ///< the first is the outermost call, and stays
};

} // namespace kiv::diagnostics
