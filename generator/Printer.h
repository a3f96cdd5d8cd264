#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How text is put together: templates that look like the code they make, and the few ways in which
/// a line that is too long is broken. What comes out is as clang-format would leave it.
namespace kivgen {

/// The greatest length of a line.
inline constexpr std::size_t columns = 100;

/// What stands for the slots of a template.
using Slots = std::initializer_list<std::pair<std::string_view, std::string_view>>;

/// The text with each `$name$` replaced. A slot that is alone on its line takes the line away with
/// it if what stands for it is empty. Throws `std::logic_error` if the text names a slot that is
/// not there, or holds a single `$`: a fault of the generator, not of a definition.
std::string fill(std::string_view text, Slots slots);

/// The text with every line that is not empty moved to the right.
std::string indented(std::string_view text, std::size_t by);

/// A documentation comment, one or several lines, each beginning with `///`.
std::string comment(std::string_view text, std::size_t indent);

/// `head`, the items with `separator` between them, and `tail`, on one line if it is short enough.
/// Else the items fill the lines, aligned with the end of `head`; where an item is too long for
/// that they stand further left, behind a break after `head`. `indent` is that of the first line.
std::string wrapped(std::size_t indent, std::string_view head,
                    std::vector<std::string> const& items, std::string_view separator,
                    std::string_view tail);

} // namespace kivgen
