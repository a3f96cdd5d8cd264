#include "tools/compat/Breaks.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace compat {
namespace {

struct Word {
    std::string_view text;
    bool Breaks::*member;
};

constexpr std::array words{Word{"wire", &Breaks::wire}, Word{"source", &Breaks::source},
                           Word{"binary", &Breaks::binary}};

std::string_view trimmed(std::string_view text)
{
    auto const first = text.find_first_not_of(' ');
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

std::string toText(Breaks breaks)
{
    std::string text;
    for (Word const& word : words) {
        if (breaks.*word.member) {
            text += (text.empty() ? "" : ", ") + std::string(word.text);
        }
    }
    return text.empty() ? "nothing" : text;
}

Breaks breaksOf(std::string_view text)
{
    Breaks breaks;
    for (std::size_t begin = 0; begin <= text.size();) {
        auto const end = std::min(text.find(',', begin), text.size());
        auto const given = trimmed(text.substr(begin, end - begin));
        auto const* const found = std::ranges::find(words, given, &Word::text);
        if (found == words.end()) {
            throw std::invalid_argument("'" + std::string(given) +
                                        "' is nothing that breaks; that are wire, source and "
                                        "binary, with commas between");
        }
        breaks.*(found->member) = true;
        begin = end + 1;
    }
    return breaks;
}

} // namespace compat
