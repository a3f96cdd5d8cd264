#pragma once

#include <atomic>
#include <string>
#include <string_view>

namespace kiv::diagnostics {

/// A file that lines are appended to, each by one `write`, so that processes can share it.
class Sink {
public:
    /// Lines go to standard error until `open` is called.
    Sink() = default;
    Sink(Sink const&) = delete;
    Sink(Sink&&) = delete;
    Sink& operator=(Sink const&) = delete;
    Sink& operator=(Sink&&) = delete;
    ~Sink();

    /// Opens a file to append to. Where that fails, and later where it cannot be written, that is
    /// said on standard error, once.
    void open(std::string path);

    /// Appends a line, which ends with a line break. May be called by a signal handler.
    bool write(std::string_view line);

private:
    void complain(int fault);

    std::string m_path;
    int m_descriptor = 2;
    std::atomic<bool> m_hasComplained{false};
};

/// Says a line on standard error, with the process in front of it: `zel-kiv[4711]: …`.
void say(std::string_view text);

} // namespace kiv::diagnostics
