#include "text/Path.h"

#include <algorithm>

namespace kiv {

namespace {

bool isWord(std::string_view key)
{
    return !key.empty() && std::all_of(key.begin(), key.end(), [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
               (character >= '0' && character <= '9') || character == '_';
    });
}

std::string stepText(std::size_t index)
{
    return "[" + std::to_string(index) + "]";
}

std::string stepText(std::string_view key)
{
    if (isWord(key)) {
        return "." + std::string(key);
    }
    return "[\"" + std::string(key) + "\"]";
}

} // namespace

std::string Path::text() const
{
    std::string text;
    for (auto const& step : m_steps) {
        text += std::visit([](auto const& value) { return stepText(value); }, step);
    }
    if (text.empty()) {
        return "the top";
    }
    return text.front() == '.' ? text.substr(1) : text;
}

} // namespace kiv
