#include "tools/kiv/LineReader.h"

#include <algorithm>
#include <string_view>

namespace kiv {

namespace {

constexpr std::size_t chunkSize = 64UL * 1024;

} // namespace

bool LineReader::next()
{
    while (take()) {
        if (m_line.find_first_not_of(" \t\r") != std::string::npos) {
            return true;
        }
    }
    return false;
}

bool LineReader::take()
{
    m_line.clear();
    ++m_number;
    for (;;) {
        if (m_at == m_chunk.size()) {
            m_chunk.resize(chunkSize);
            m_chunk.resize(m_source(m_chunk));
            m_at = 0;
        }
        if (m_chunk.empty()) {
            return !m_line.empty();
        }
        std::size_t const end = m_chunk.find('\n', m_at);
        m_line.append(m_chunk, m_at, std::min(end, m_chunk.size()) - m_at);
        m_at = end == std::string::npos ? m_chunk.size() : end + 1;
        if (end != std::string::npos) {
            return true;
        }
    }
}

json::ByteSource LineReader::source() const
{
    return [rest = std::string_view(m_line)](std::span<char> buffer) mutable {
        std::size_t const count = rest.copy(buffer.data(), buffer.size());
        rest.remove_prefix(count);
        return count;
    };
}

} // namespace kiv
