#include "text/Output.h"

#include "text/Failure.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace kiv {

Output::Output(int descriptor) : m_descriptor(descriptor)
{
    m_buffer.reserve(bufferSize);
}

void Output::write(std::string_view text)
{
    m_buffer.append(text);
    if (m_buffer.size() >= bufferSize) {
        flush();
    }
}

void Output::flush()
{
    if (m_text != nullptr) {
        m_text->append(m_buffer);
        m_buffer.clear();
        return;
    }
    std::string_view rest = m_buffer;
    while (!rest.empty()) {
        ssize_t const written = ::write(m_descriptor, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throw Failure(std::string("cannot write the output: ") + std::strerror(errno));
        }
    }
    m_buffer.clear();
}

} // namespace kiv
