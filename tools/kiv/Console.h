#pragma once

#include <string>
#include <string_view>
#include <vector>

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

/// Marks up text for a terminal, or leaves it as it is.
class Style {
public:
    /// Colour goes to terminals alone, and to none if `NO_COLOR` is set or the terminal is dumb.
    explicit Style(int descriptor);

    [[nodiscard]] std::string strong(std::string_view text) const { return marked("1", text); }
    [[nodiscard]] std::string faint(std::string_view text) const { return marked("2", text); }
    [[nodiscard]] std::string error(std::string_view text) const { return marked("1;31", text); }

private:
    [[nodiscard]] std::string marked(std::string_view code, std::string_view text) const;

    bool m_colour;
};

/// Whether the descriptor is a terminal that does what escape sequences say.
bool redraws(int descriptor);

/// Where a command prints its result.
struct Console {
    Output output;
    Style style;
};

/// Rows of text in aligned columns. The first column is printed strong.
class Table {
public:
    void add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
    [[nodiscard]] bool empty() const noexcept { return m_rows.empty(); }
    void print(Console& console, std::string_view indent = "") const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

/// "1 field", "1,669 fields".
std::string counted(std::size_t number, std::string_view noun);

/// "a, b and c", with `last` before the last one.
std::string listed(std::vector<std::string> const& words, std::string_view last);

} // namespace kiv
