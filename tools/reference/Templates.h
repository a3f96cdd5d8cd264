#pragma once

#include <kainjow/mustache.hpp>

#include <filesystem>
#include <string>

namespace reference {

namespace fs = std::filesystem;

/// What a template is filled with. Text under a name is escaped where the template says `{{name}}`.
using Data = kainjow::mustache::data;
using List = kainjow::mustache::list;

/// The content of a file. Throws `std::runtime_error` if it cannot be read.
std::string contentOf(fs::path const& file);

/// The HTML templates of a folder.
class Templates {
public:
    explicit Templates(fs::path folder) : m_folder(std::move(folder)) {}

    /// The template `name`.html with `data` filled in. Throws `std::runtime_error` if there is no
    /// such template or if it is not well formed.
    [[nodiscard]] std::string fill(std::string const& name, Data const& data) const;

private:
    fs::path m_folder;
};

} // namespace reference
