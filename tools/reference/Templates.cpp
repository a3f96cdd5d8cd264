#include "tools/reference/Templates.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace reference {

std::string escaped(std::string_view text)
{
    return kainjow::mustache::html_escape(std::string(text));
}

std::string breakable(std::string_view code)
{
    std::string html;
    for (std::size_t place = 0; place < code.size(); ++place) {
        html += escaped(code.substr(place, 1));
        bool const endsScope = place > 0 && code.substr(place - 1, 2) == "::";
        if (endsScope || code[place] == '(' || code[place] == '<') {
            html += "<wbr>";
        }
    }
    return html;
}

std::string contentOf(fs::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    if (!stream || !content) {
        throw std::runtime_error(file.string() + ": cannot be read");
    }
    return content.str();
}

std::string Templates::fill(std::string const& name, Data const& data) const
{
    fs::path const file = m_folder / (name + ".html");
    kainjow::mustache::mustache page(contentOf(file));
    std::string text = page.render(data);
    if (!page.is_valid()) {
        throw std::runtime_error(file.string() + ": " + page.error_message());
    }
    return text;
}

} // namespace reference
