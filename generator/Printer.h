#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How text is put together: templates that look like the code they make, and the few ways in which
/// a line that is too long is broken. What comes out is as clang-format would leave it.
namespace kivgen {

/// The greatest length of a line.
inline constexpr std::size_t columns = 100;

/// Lines of code, broken only when it is known at which column they stand. So whoever makes them
/// need not know what they will be put into.
class Block {
public:
    /// Gives the lines for a column, each moved there and with its end.
    using Layout = std::function<std::string(std::size_t column)>;

    Block() = default;

    /// Lines that stay as they are. The end of the last one may be left out.
    Block(std::string text);
    Block(std::string_view text) : Block(std::string(text)) {}
    Block(char const* text) : Block(std::string(text)) {}

    /// Lines that are broken in one way or another.
    static Block of(Layout layout);

    Block& operator+=(Block const& other);
    [[nodiscard]] bool isEmpty() const { return m_parts.empty(); }

    /// The lines as they stand at that column.
    [[nodiscard]] std::string at(std::size_t column) const;

private:
    std::vector<Layout> m_parts;
};

/// What stands for the slots of a template.
using Slots = std::vector<std::pair<std::string_view, Block>>;

/// The template with each `$name$` replaced. A slot that is alone on its line stands for lines at
/// its own column, and takes its line away with it if there are none; any other stands for a word.
///
/// The template must live as long as the block. `at` throws `std::logic_error` if the text names a
/// slot that is not there, or holds a single `$`: a fault of the generator, not of a definition.
Block fill(std::string_view text, Slots slots);

/// A documentation comment, one or several lines, each beginning with `///`.
Block comment(std::string text);

/// `head`, the items with `separator` between them, and `tail`, on one line if it is short enough.
/// Else the items fill the lines, aligned with the end of `head`; where an item is too long for
/// that they stand further left, behind a break after `head`.
Block wrapped(std::string const& head, std::vector<std::string> const& items,
              std::string const& separator, std::string const& tail);

} // namespace kivgen
