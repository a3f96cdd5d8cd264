#pragma once

#include "json/PositionedStream.h"

#include <cstddef>
#include <string>

namespace kiv {

/// Takes a text apart into lines, blank ones left out.
class LineReader {
public:
    explicit LineReader(json::ByteSource source) : m_source(std::move(source)) {}

    /// Goes on to the next line; false at the end. What the source throws passes through.
    bool next();

    [[nodiscard]] std::size_t number() const { return m_number; }

    /// The line as a text of its own, until the next is asked for.
    [[nodiscard]] json::ByteSource source() const;

private:
    /// Fills the line up to its end; false if there is none.
    bool take();

    json::ByteSource m_source;
    std::string m_chunk;
    std::size_t m_at = 0; ///< in the chunk
    std::string m_line;
    std::size_t m_number = 0;
};

} // namespace kiv
