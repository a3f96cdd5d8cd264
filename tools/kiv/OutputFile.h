#pragma once

#include <string>

namespace kiv {

/// A file that is there whole or not at all: it is written under another name beside its own, and
/// takes that when it is kept. A device or a pipe is written as it stands.
class OutputFile {
public:
    /// Throws `Failure` if nothing can be written there.
    explicit OutputFile(std::string path);
    OutputFile(OutputFile const&) = delete;
    OutputFile& operator=(OutputFile const&) = delete;
    ~OutputFile();

    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// Gives the file its name. Throws `Failure` if that fails; then nothing stays.
    void keep();

private:
    std::string m_path;
    std::string m_draft; ///< the other name; empty if there is none
    int m_descriptor = -1;
};

} // namespace kiv
