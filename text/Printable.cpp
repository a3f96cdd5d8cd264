#include "text/Printable.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kiv {

namespace {

unsigned byteAt(std::string_view text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

/// One character of a UTF-8 text. A broken one has the length 1 and no code.
struct Character {
    std::size_t length = 1;
    char32_t code = 0;
};

Character firstOf(std::string_view text)
{
    auto const lead = byteAt(text, 0);
    if (lead < 0x80) {
        return {1, lead};
    }
    std::size_t const length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || length > text.size()) {
        return {};
    }
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t position = 1; position < length; ++position) {
        if ((byteAt(text, position) & 0xC0U) != 0x80U) {
            return {};
        }
        code = (code << 6U) | (byteAt(text, position) & 0x3FU);
    }
    bool const isOverlong = code < (length == 2 ? 0x80U : length == 3 ? 0x800U : 0x10000U);
    return isOverlong || code > 0x10FFFF ? Character{} : Character{length, code};
}

/// Whether a reader can see the character for what it is. Those that cannot be seen or that turn
/// the direction of writing would make a message, or a generated comment, read other than it is.
bool isPlain(char32_t code)
{
    struct Range {
        char32_t first;
        char32_t last;
    };
    constexpr std::array hidden{
        Range{0x00, 0x1F},     Range{0x7F, 0x9F},     Range{0x200B, 0x200F}, Range{0x2028, 0x202E},
        Range{0x2060, 0x206F}, Range{0xD800, 0xDFFF}, Range{0xFEFF, 0xFEFF},
    };
    return std::ranges::none_of(
        hidden, [code](Range const& range) { return code >= range.first && code <= range.last; });
}

std::string asBytes(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (std::size_t position = 0; position < bytes.size(); ++position) {
        text += "\\x";
        text += digits[byteAt(bytes, position) / 16];
        text += digits[byteAt(bytes, position) % 16];
    }
    return text;
}

/// The beginning of a text, at most that many bytes, and no character in two.
std::string_view beginning(std::string_view text, std::size_t most)
{
    if (text.size() <= most) {
        return text;
    }
    while (most > 0 && (byteAt(text, most) & 0xC0U) == 0x80U) {
        --most;
    }
    return text.substr(0, most);
}

} // namespace

std::string printable(std::string_view text)
{
    std::string shown;
    while (!text.empty()) {
        auto const character = firstOf(text);
        auto const bytes = text.substr(0, character.length);
        shown += isPlain(character.code) ? std::string{bytes} : asBytes(bytes);
        text.remove_prefix(character.length);
    }
    return shown;
}

std::u32string decoded(std::string_view text)
{
    std::u32string characters;
    while (!text.empty()) {
        auto const character = firstOf(text);
        bool const isBroken = character.code == 0 && text.front() != '\0';
        characters += isBroken ? U'\uFFFD' : character.code;
        text.remove_prefix(character.length);
    }
    return characters;
}

std::string inQuotes(std::string_view text)
{
    constexpr std::size_t most = 80;
    auto const shown = beginning(text, most);
    return "'" + printable(shown) + (shown.size() < text.size() ? "…'" : "'");
}

std::string inDoubleQuotes(std::string_view text, std::size_t most)
{
    auto const part = beginning(text, most);
    std::string shown = "\"";
    for (char const each : printable(part)) {
        if (each == '"') {
            shown += '\\';
        }
        shown += each;
    }
    return shown + (part.size() < text.size() ? "…\"" : "\"");
}

} // namespace kiv
