#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Guesses at what somebody meant who wrote a name that nobody knows.
namespace kiv {

/// The known words close to `word`, at most `most` of them, the closest first and equally close
/// ones in the order of `known`. Close is another case, then the same words in another order, then
/// a typing slip or two, more in long words and none in words of two letters, or one word beginning
/// with the other; so the result is often empty.
std::vector<std::string> nearest(std::string_view word, std::span<std::string_view const> known,
                                 std::size_t most);

/// Whether one of the words that a name is made of is a slip or two from `word`, or all of them are
/// those of `word` in another order: `temperature` is near `gearboxOilTemperatur`.
bool isNear(std::string_view word, std::string_view name);

/// Whether a letter added, dropped, changed or swapped with its neighbour makes one word of the
/// other.
bool isOneSlip(std::string_view word, std::string_view other);

/// The end of a message about an unknown name: `; did you mean 'string' or 'string list'?`, or
/// nothing if no known word is close.
std::string didYouMean(std::string_view word, std::span<std::string_view const> known);

} // namespace kiv
