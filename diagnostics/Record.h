#pragma once

#include "diagnostics/Receiver.h"
#include "diagnostics/Sink.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>

namespace kiv::diagnostics {

/// Keeps what goes in and comes out of the library: one line of JSON for each call, in a file for
/// each process.
class Record {
public:
    /// Writes to `<pid>.jsonl` in that folder, up to `limit` bytes.
    Record(std::string folder, std::size_t limit);

    void add(Call const& call);

private:
    void openFile();

    std::string m_folder;
    std::size_t m_limit;
    std::mutex m_mutex;
    pid_t m_process = 0; ///< whose file is open: a process may have forked since
    std::unique_ptr<Sink> m_file;
    std::size_t m_size = 0;
    bool m_isFull = false;
};

} // namespace kiv::diagnostics
