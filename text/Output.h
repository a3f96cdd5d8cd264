#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kiv {

/// A buffered way to a file descriptor or into a text that does not lose a failed write. `flush`
/// must be called at the end: what is still in the buffer when the output goes is dropped, so that
/// a command that fails early prints nothing at all.
class Output {
public:
    explicit Output(int descriptor);
    /// Appends to `text`, which must outlive it.
    explicit Output(std::string& text) : m_text(&text) {}

    /// These throw `Failure` if the descriptor cannot be written.
    void put(char character)
    {
        m_buffer.push_back(character);
        if (m_buffer.size() >= bufferSize) {
            flush();
        }
    }
    void write(std::string_view text);
    void flush();

private:
    static constexpr std::size_t bufferSize = 64UL * 1024;

    int m_descriptor = -1;
    std::string* m_text = nullptr; ///< if it is there, what is written goes here
    std::string m_buffer;
};

} // namespace kiv
