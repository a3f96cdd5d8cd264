#include "diagnostics/Sink.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace kiv::diagnostics {

namespace {

/// Whether all of it was written, at once but for what a signal or a full pipe breaks up.
bool writeWhole(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        auto const count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

Sink::~Sink()
{
    if (m_descriptor > STDERR_FILENO) {
        ::close(m_descriptor);
    }
}

void Sink::open(std::string path)
{
    m_path = std::move(path);
    constexpr int mode = 0644;
    m_descriptor = ::open(m_path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, mode);
    if (m_descriptor < 0) {
        complain(errno);
    }
}

bool Sink::write(std::string_view line)
{
    if (m_descriptor < 0) {
        return false;
    }
    bool const isWritten = writeWhole(m_descriptor, line);
    if (!isWritten) {
        complain(errno);
    }
    return isWritten;
}

void Sink::complain(int fault)
{
    if (!m_path.empty() && !m_hasComplained.exchange(true)) {
        say(m_path + ": cannot write: " + std::strerror(fault) +
            "; the program goes on without it");
    }
}

void say(std::string_view text)
{
    std::string line = "zel-kiv[" + std::to_string(::getpid()) + "]: ";
    line.append(text).push_back('\n');
    static_cast<void>(writeWhole(STDERR_FILENO, line));
}

} // namespace kiv::diagnostics
