#include "diagnostics/Words.h"

#include "json/TypeNames.h"
#include "text/Suggestion.h"

#include <array>
#include <charconv>

namespace kiv::diagnostics {

std::string textOf(double number)
{
    std::array<char, 32> buffer{};
    auto const result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

std::string quoted(std::string_view text)
{
    // Long texts are cut: the finding names the place, so nobody needs all of it.
    constexpr std::size_t most = 40;
    if (text.size() <= most) {
        return '"' + escaped(text) + '"';
    }
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end; // not within a character
    }
    return '"' + escaped(text.substr(0, end)) + "…\"";
}

std::string escaped(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    result.reserve(text.size());
    for (char const each : text) {
        auto const code = static_cast<unsigned char>(each);
        if (code < 0x20U || code == 0x7FU) {
            result.append("\\u00").append({digits[code >> 4U], digits[code & 0xFU]});
        } else {
            result.push_back(each);
        }
    }
    return result;
}

std::string wanted(data::Value const* value, std::string_view want)
{
    return std::string(typeName(value)) + " where " + std::string(want) + " is wanted";
}

std::string guess(std::string_view word, std::span<std::string_view const> known)
{
    std::string const guessed = didYouMean(word, known);
    return guessed.starts_with("; ") ? guessed.substr(2) : guessed;
}

} // namespace kiv::diagnostics
