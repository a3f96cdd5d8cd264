#include "text/Suggestion.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace kiv {
namespace {

/// Longer words are not compared: no known name comes near, and the cost stays bounded.
constexpr std::size_t longestWord = 120;

/// How many slips a word of that length may hold and still be taken for another. Of words of two
/// letters every other one is near.
std::size_t slipsIn(std::size_t length)
{
    return std::min<std::size_t>(length / 3, 4);
}

bool isUpper(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

bool isLetterOrDigit(char letter)
{
    return isUpper(letter) || (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char& letter : result) {
        letter = isUpper(letter) ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return result;
}

/// The words that a name is made of, in small letters: "gear", "mode" of `gearMode`.
std::vector<std::string> wordsIn(std::string_view name)
{
    std::vector<std::string> words;
    char before = '\0';
    for (char const letter : name) {
        bool const begins = isLetterOrDigit(letter) &&
                            (!isLetterOrDigit(before) || (isUpper(letter) && !isUpper(before)));
        if (begins) {
            words.emplace_back();
        }
        if (isLetterOrDigit(letter)) {
            words.back() += lowered({&letter, 1});
        }
        before = letter;
    }
    return words;
}

bool areSameWords(std::string_view one, std::string_view other)
{
    auto words = wordsIn(one);
    auto others = wordsIn(other);
    return words.size() > 1 && std::ranges::is_permutation(words, others);
}

/// How many letters must be added, dropped, changed or swapped with their neighbour to make one
/// word of the other; `limit` + 1 stands for anything above `limit`.
std::size_t slipsBetween(std::string_view one, std::string_view other, std::size_t limit)
{
    if (std::max(one.size(), other.size()) - std::min(one.size(), other.size()) > limit) {
        return limit + 1;
    }
    // The table of distances between all beginnings of both words, of which three rows suffice.
    std::array<std::array<std::size_t, longestWord + 1>, 3> rows{};
    for (std::size_t column = 0; column <= other.size(); ++column) {
        rows[0][column] = column;
    }
    for (std::size_t line = 1; line <= one.size(); ++line) {
        auto& row = rows[line % 3];
        auto const& above = rows[(line - 1) % 3];
        auto const& twoAbove = rows[(line + 1) % 3];
        row[0] = line;
        auto best = line;
        for (std::size_t column = 1; column <= other.size(); ++column) {
            std::size_t const change = one[line - 1] == other[column - 1] ? 0 : 1;
            row[column] =
                std::min({above[column] + 1, row[column - 1] + 1, above[column - 1] + change});
            bool const isSwap = line > 1 && column > 1 && one[line - 1] == other[column - 2] &&
                                one[line - 2] == other[column - 1];
            if (isSwap) {
                row[column] = std::min(row[column], twoAbove[column - 2] + 1);
            }
            best = std::min(best, row[column]);
        }
        if (best > limit) {
            return limit + 1;
        }
    }
    return std::min(rows[one.size() % 3][other.size()], limit + 1);
}

/// Whether one of the words is a beginning of the other that is long enough to mean something.
bool isBeginning(std::string_view one, std::string_view other)
{
    return std::min(one.size(), other.size()) >= 3 &&
           (one.starts_with(other) || other.starts_with(one));
}

/// How far a known name is from what was written: other case, then other order of the words, then
/// slips. Nothing if it is another word.
std::optional<std::size_t> distanceBetween(std::string_view word, std::string_view name)
{
    std::string const one = lowered(word);
    std::string const other = lowered(name);
    if (one == other) {
        return 0;
    }
    if (areSameWords(word, name)) {
        return 1;
    }
    auto const limit = slipsIn(word.size());
    auto const slips = slipsBetween(one, other, limit);
    if (slips > limit && !isBeginning(one, other)) {
        return std::nullopt;
    }
    return 2 * slips;
}

} // namespace

std::vector<std::string> nearest(std::string_view word, std::span<std::string_view const> known,
                                 std::size_t most)
{
    if (word.size() > longestWord) {
        return {};
    }
    std::vector<std::pair<std::size_t, std::string_view>> found;
    for (auto const name : known) {
        auto const distance =
            name.size() > longestWord ? std::nullopt : distanceBetween(word, name);
        if (distance) {
            found.emplace_back(*distance, name);
        }
    }
    std::ranges::stable_sort(found, {}, [](auto const& each) { return each.first; });
    // Words a good deal further off than the closest only distract from it.
    std::erase_if(found, [best = found.empty() ? 0 : found.front().first](auto const& one) {
        return one.first > best + 2; // a slip
    });
    found.resize(std::min(found.size(), most));
    std::vector<std::string> names;
    names.reserve(found.size());
    for (auto const& [distance, name] : found) {
        names.emplace_back(name);
    }
    return names;
}

bool isNear(std::string_view word, std::string_view name)
{
    auto const words = wordsIn(name);
    return word.size() <= longestWord && name.size() <= longestWord &&
           (areSameWords(word, name) || std::ranges::any_of(words, [&](std::string const& part) {
                // A part says less than the whole, so it must be nearer.
                auto const limit = std::min(word.size(), part.size()) / 4;
                return slipsBetween(lowered(word), part, limit) <= limit;
            }));
}

bool isOneSlip(std::string_view word, std::string_view other)
{
    return word.size() <= longestWord && other.size() <= longestWord &&
           slipsBetween(word, other, 1) == 1;
}

std::string didYouMean(std::string_view word, std::span<std::string_view const> known)
{
    auto const names = nearest(word, known, 2);
    if (names.empty()) {
        return {};
    }
    std::string text = "; did you mean '" + names.front() + "'";
    if (names.size() > 1) {
        text += " or '" + names.back() + "'";
    }
    return text + "?";
}

} // namespace kiv
