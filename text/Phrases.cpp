#include "text/Phrases.h"

namespace kiv {

std::string counted(std::size_t number, std::string_view noun)
{
    std::string text = std::to_string(number);
    for (std::size_t end = text.size(); end > 3; end -= 3) {
        text.insert(end - 3, ",");
    }
    text.append(" ").append(noun);
    return number == 1 ? text : text + "s";
}

std::string listed(std::vector<std::string> const& words, std::string_view last)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) {
            text.append(i + 1 < words.size() ? ", " : " " + std::string(last) + " ");
        }
        text.append(words[i]);
    }
    return text;
}

} // namespace kiv
