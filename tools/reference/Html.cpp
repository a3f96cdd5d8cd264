#include "tools/reference/Html.h"

#include <kainjow/mustache.hpp>

#include <cctype>

namespace reference {

namespace {

bool isLower(char letter)
{
    return std::islower(static_cast<unsigned char>(letter)) != 0;
}

bool isUpper(char letter)
{
    return std::isupper(static_cast<unsigned char>(letter)) != 0;
}

/// Whether a line may end before the letter at that place, which is not the first.
bool mayBreak(std::string_view code, std::size_t place)
{
    char const before = code[place - 1];
    bool const endsScope = place > 1 && code.substr(place - 2, 2) == "::";
    return endsScope || std::string_view("/.(<").find(before) != std::string_view::npos ||
           (isLower(before) && isUpper(code[place]));
}

} // namespace

std::string escaped(std::string_view text)
{
    return kainjow::mustache::html_escape(std::string(text));
}

std::string breakable(std::string_view code)
{
    std::string html;
    for (std::size_t place = 0; place < code.size(); ++place) {
        if (place > 0 && mayBreak(code, place)) {
            html += "<wbr>";
        }
        html += escaped(code.substr(place, 1));
    }
    return html;
}

std::string attributeOf(std::string const& html, std::string const& name)
{
    std::string const start = ' ' + name + "=\"";
    auto const place = html.find(start);
    if (place == std::string::npos) {
        return {};
    }
    auto const value = place + start.size();
    return html.substr(value, html.find('"', value) - value);
}

void dropAttribute(std::string& html, std::string const& name)
{
    std::string const start = ' ' + name + "=\"";
    for (auto place = html.find(start); place != std::string::npos; place = html.find(start)) {
        auto const end = html.find('"', place + start.size());
        html.erase(place, end + 1 - place);
    }
}

} // namespace reference
