#pragma once

#include "generator/model/Model.h"

#include <string>
#include <string_view>
#include <vector>

/// What the generator makes: outputs by name, each of them files of one or several forms.
namespace kivgen {

/// A file to be written, its path relative to the folder of all generated files.
struct Page {
    std::string path;
    std::string text;
};

/// All files of all outputs.
std::vector<Page> allPages(Interface const& interface);

/// The names of the outputs.
std::vector<std::string> outputNames();

/// The paths of the files of one output.
std::vector<std::string> pathsOf(std::string_view output, Interface const& interface);

} // namespace kivgen
