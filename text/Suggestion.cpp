#include "text/Suggestion.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kiv {
namespace {

/// Longer words are not compared: no known name comes near, and the cost stays bounded.
constexpr std::size_t longestWord = 120;

/// How many slips a word of that length may hold and still be taken for another.
std::size_t slipsIn(std::size_t length)
{
    return std::clamp<std::size_t>(length / 3, 1, 4);
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

} // namespace

std::vector<std::string> nearest(std::string_view word, std::span<std::string_view const> known,
                                 std::size_t most)
{
    if (word.size() > longestWord) {
        return {};
    }
    auto const limit = slipsIn(word.size());
    std::vector<std::pair<std::size_t, std::string_view>> found;
    for (auto const name : known) {
        if (name.size() > longestWord) {
            continue;
        }
        auto const slips = slipsBetween(word, name, limit);
        if (slips <= limit || isBeginning(word, name)) {
            found.emplace_back(slips, name);
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](auto const& one, auto const& other) { return one.first < other.first; });
    // Words a good deal further off than the closest only distract from it.
    std::erase_if(found, [best = found.empty() ? 0 : found.front().first](auto const& one) {
        return one.first > best + 1;
    });
    found.resize(std::min(found.size(), most));
    std::vector<std::string> names;
    names.reserve(found.size());
    for (auto const& [slips, name] : found) {
        names.emplace_back(name);
    }
    return names;
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
