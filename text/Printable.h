#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts that somebody else wrote, as messages may show them.
namespace kiv {

/// Control characters, characters that cannot be seen or that change the direction of writing, and
/// broken UTF-8 appear as `\x1b`. What is printable already stays as it is.
std::string printable(std::string_view text);

/// The characters of a text in UTF-8; U+FFFD stands for what is broken.
std::u32string decoded(std::string_view text);

/// The text between single quotes, printable, and cut short if it is long.
std::string inQuotes(std::string_view text);

/// The text between double quotes, printable, those within it escaped, and cut after `most` bytes.
std::string inDoubleQuotes(std::string_view text, std::size_t most = std::string_view::npos);

} // namespace kiv
