#include "tools/reference/Templates.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace reference {

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
