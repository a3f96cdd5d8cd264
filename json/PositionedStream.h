#pragma once

#include "json/Position.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <functional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace kiv::json {

/// Gives the next bytes of a text into `buffer`, and how many those are; none at the end.
using ByteSource = std::function<std::size_t(std::span<char> buffer)>;

/// A text for RapidJSON's reader, taken from its source chunk by chunk, that knows where it stands.
/// What the source throws passes through.
///
/// A token is what JSON is made of: a bracket, a string, a number, a word. Just enough of JSON is
/// followed here to know where the last token begun, as the reader tells of a string or a number
/// only when it has taken all of it.
class PositionedStream {
public:
    using Ch = char;

    /// The reader counts the bytes of a string or a number in 32 bits, and writes where it should
    /// not when they run over. So the text ends for it within a longer one.
    static constexpr std::size_t longestToken = std::size_t{2} << 30U;

    /// `start` is the place of the first byte.
    explicit PositionedStream(ByteSource source, std::size_t longest = longestToken,
                              Position start = {})
        : m_source(std::move(source)), m_longest(longest), m_here(start), m_token(start)
    {
        std::size_t count = 0;
        do { // a source may give less than it could
            count = m_source(std::span(m_chunk).subspan(m_end));
            m_end += count;
        } while (count != 0 && m_end < longestMark);
    }

    // RapidJSON calls what follows by these names.

    /// The next byte, zero at the end.
    [[nodiscard]] char Peek() const { return m_next < m_end ? m_chunk[m_next] : '\0'; }

    char Take()
    {
        char const byte = Peek();
        if (m_next == m_end) {
            return byte;
        }
        m_history.at(m_offset % m_history.size()) = m_here;
        followTokens(byte);
        advance(byte);
        return byte;
    }

    /// How many bytes were taken.
    [[nodiscard]] std::size_t Tell() const { return m_offset; }

    // The reader names these, but calls them only for texts that it may write into.
    static char* PutBegin() { return refuse(); }
    static void Put(char) { refuse(); }
    static void Flush() { refuse(); }
    static std::size_t PutEnd(char*) { return refuse() == nullptr ? 0 : 1; }

    [[nodiscard]] bool atEnd() const { return m_next == m_end; }

    /// Whether the end is that of a token which is too long.
    [[nodiscard]] bool isCut() const { return m_isCut; }

    /// Whether the text starts with this byte order mark. To be asked before anything is taken.
    [[nodiscard]] bool startsWith(std::string_view mark) const
    {
        return std::string_view(m_chunk.data(), m_end).starts_with(mark);
    }

    /// The place of the next byte.
    [[nodiscard]] Position here() const { return m_here; }

    /// The place where the last token begun.
    [[nodiscard]] Position token() const { return m_token; }

    /// The last byte that was taken, blanks apart.
    [[nodiscard]] char last() const { return m_last; }

    /// Whether what was taken last is part of a number or a word.
    [[nodiscard]] bool inWord() const { return m_inWord; }

    /// The place of the byte that was taken, or is next, at `offset`. The reader names only the
    /// start of the last token and the last few bytes.
    [[nodiscard]] Position positionOf(std::size_t offset) const
    {
        if (offset < m_offset && m_offset - offset <= m_history.size()) {
            return m_history.at(offset % m_history.size());
        }
        return offset < m_offset ? m_token : m_here;
    }

private:
    static constexpr std::size_t chunkSize = 64UL * 1024;
    static constexpr std::size_t longestMark = 3;
    /// Longer than an escaped pair of surrogates.
    static constexpr std::size_t historySize = 16;

    void fill()
    {
        m_next = 0;
        m_isCut = (m_inString || m_inWord) && m_offset - m_tokenOffset > m_longest;
        m_end = m_isCut ? 0 : m_source(m_chunk);
    }

    void advance(char byte)
    {
        ++m_offset;
        bool const continuesCharacter = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        if (byte == '\n') {
            ++m_here.line;
            m_here.column = 1;
        } else if (!continuesCharacter) {
            ++m_here.column;
        }
        if (++m_next == m_end) {
            fill();
        }
    }

    void followTokens(char byte)
    {
        if (m_inString) {
            m_inString = m_escaped || byte != '"';
            m_escaped = !m_escaped && byte == '\\';
            return;
        }
        bool const bare = isBare(byte);
        m_last = isBlank(byte) ? m_last : byte;
        if (!isBlank(byte) && (!bare || !m_inWord)) {
            m_token = m_here;
            m_tokenOffset = m_offset;
        }
        m_inWord = bare;
        m_inString = byte == '"';
    }

    static bool isBlank(char byte)
    {
        return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
    }

    /// Whether a byte is part of a number or a word.
    static bool isBare(char byte)
    {
        switch (byte) {
        case ',':
        case ':':
        case '[':
        case ']':
        case '{':
        case '}':
        case '"':
            return false;
        default:
            return !isBlank(byte);
        }
    }

    static char* refuse()
    {
        assert(false);
        return nullptr;
    }

    ByteSource m_source;
    std::size_t m_longest;
    std::vector<char> m_chunk = std::vector<char>(chunkSize);
    std::size_t m_next = 0;
    std::size_t m_end = 0;
    std::size_t m_offset = 0;
    std::size_t m_tokenOffset = 0;
    Position m_here;
    Position m_token;
    std::array<Position, historySize> m_history;
    char m_last = '\0';
    bool m_inString = false;
    bool m_escaped = false;
    bool m_inWord = false;
    bool m_isCut = false;
};

} // namespace kiv::json
