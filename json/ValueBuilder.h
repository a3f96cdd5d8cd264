#pragma once

#include "json/JsonReader.h"
#include "testing/detail/ValueBuilder.h"

#include <optional>
#include <string>
#include <vector>

namespace kiv::json {

/// Builds values and notes where they stand. A value that ends goes straight into what holds it,
/// or, as an entry of the array at the top, to the handler, if there is one; without one the value
/// at the top stays in `document`.
class ValueBuilder : public zel::kiv::testing::detail::ValueBuilder {
    using Base = zel::kiv::testing::detail::ValueBuilder;

public:
    /// All must outlive the builder; `handler` may be null.
    ValueBuilder(std::string const& file, PositionedStream const& stream, Document& document,
                 EntryHandler const* handler, Listeners const& listeners);

private:
    /// Where an array or object begins that has not ended yet, and where its last key stands.
    struct Mark {
        Position position;
        Position key;
    };

    [[noreturn]] void refuse(std::string const& what, bool isNext) const override;
    Owner wideInteger(std::string const& digits) override;
    Owner wideNumber(std::string const& number) override;
    Owner tinyNumber(std::string const& number) override;
    void opened(data::Value const& holder) override;
    void named() override;
    void closed() override;
    void take(Owner value, std::size_t index) override;
    void notePlace(data::Value const* value, Position position);
    void tellRepeated(Level const& parent);
    void givePart();
    Places& places();
    [[nodiscard]] bool givesEntries() const;
    [[nodiscard]] bool isInList() const;

    std::string const& m_file;
    PositionedStream const& m_stream;
    Document& m_document;
    EntryHandler const* m_handler;
    Listeners const& m_listeners;
    std::vector<Mark> m_marks;
    std::optional<Position> m_ended; ///< where the array or object begins that has just ended
    std::size_t m_partStart = 0;     ///< in the text
    bool m_isLeft = false;           ///< nobody takes parts of the array
    Places m_listPlaces;             ///< in the array whose parts are given
    std::size_t m_entryLevels;       ///< down to an entry, with that
    GivenParts m_given;              ///< of the entry that is read
};

} // namespace kiv::json
