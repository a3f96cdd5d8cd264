#pragma once

#include "diagnostics/Receiver.h"
#include "frame/internal/Handover.h"
#include "frame/internal/Notices.h"
#include "json/Maps.h"
#include "json/TypeNames.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::diagnostics {

namespace common = zel::kiv::common;
namespace data = zel::dataformats::data;

/// The way of this thread from the value that was given to the one that is read just now, and what
/// is found on it.
class ReadingTrail {
public:
    static ReadingTrail& ofThread();

    void enter(Receiver& receiver, common::IObjectBase const& element, data::Value const* value);
    void enter(Receiver& receiver, common::IResourceBase const& resource, data::Value const* value);
    /// An entry of an array that is read without the array, some of its lists in parts.
    void enterEntry(Receiver& receiver, zel::kiv::catalogue::Resource const& resource,
                    std::size_t index, std::span<ListPart const> parts);
    void leave() { --m_depth; }
    /// What was entered last has been read to the end.
    void finish();

    /// Whether anything is to be told at all.
    [[nodiscard]] bool isActive() const { return m_depth > 0; }

    void startFields(Map const& map) { top().map = &map; }
    void ask(std::string_view key);
    void passNull();
    void readPlain(common::internal::Plain kind, data::Value const& value);
    void passNoList(data::Value const& value);
    void startList(data::Value const* list);
    void startEntry(data::Value const* entry);
    void endList();
    void readNested(data::Value const& value, data::Object const& object);
    void choose(data::Value const& value, data::Object const& object, std::string_view resource,
                common::internal::Targets const& targets, bool hasLastResort, bool isTaken);
    void passUri(Receiver& receiver, data::Object const& object, data::Value const* uri);

private:
    using Row = zel::kiv::catalogue::Resource;

    /// What is read: an element, a resource, or an entry of one.
    struct Level {
        common::IObjectBase const* element = nullptr;
        common::IResourceBase const* resource = nullptr;
        Row const* row = nullptr; ///< if neither is there
        data::Value const* value = nullptr;
        Map const* map = nullptr;
        std::vector<std::string_view> asked;
        std::string_view key;
        data::Value const* list = nullptr;
        std::optional<std::size_t> index;
        std::size_t taken = 0; ///< entries of the list that are not null
        std::span<ListPart const> parts;
        ListPart const* part = nullptr; ///< if the list is read in parts
        bool isReadAsList = false;
        bool isFromUri = false; ///< what is read was made of a uri
        bool isChosen = false;  ///< the class was chosen by the uri, of which all is told
        bool isRefused = false; ///< the uri of the value under the key was told to be no text
    };

    Level& top() { return m_levels[m_depth - 1]; }
    Level& push(Receiver& receiver);
    [[nodiscard]] static Row const* rowOf(Level const& level);
    [[nodiscard]] ListPart const* partOfList() const;
    /// A finding at the value that is read just now.
    [[nodiscard]] Finding here(Fate fate, Id id) const;
    void tell(Finding finding, std::string stands, std::string becomes, std::string meant = "");
    void tellForm(Level const& level);
    void tellUnknownKeys(Level const& level);
    void tellUnknown(Level const& level, std::string_view key, bool isNull);
    void checkUri(Finding finding, std::string const& name, std::string const& uri, bool hasId,
                  Row const* row);
    void checkOwnUri(Level const& level);
    void tellNoUri(data::Value const& value, data::Object const& object);

    Receiver* m_receiver = nullptr;
    std::vector<Level> m_levels;
    std::size_t m_depth = 0;
    std::size_t m_elements = 0;
    /// The uri that the next element is made of, if it is made of one.
    std::optional<Finding> m_uri;
    std::string m_uriName;
    std::string m_uriText;
    bool m_uriHasId = false;
    bool m_isChosen = false; ///< so is the class of the element that is entered next
};

} // namespace kiv::diagnostics
