#include "generator/pages/Outputs.h"

#include "generator/Printer.h"
#include "generator/pages/Pages.h"

#include <algorithm>
#include <functional>
#include <variant>

namespace kivgen {

namespace {

// What a file is made of decides how many of its form there are.
using OfResource = std::string (*)(Resource const&, Interface const&);
using OfService = std::string (*)(Service const&, Interface const&);
using OfInterface = std::string (*)(Interface const&);

/// Files of one form.
struct Form {
    std::string_view output;
    std::string_view path;
    std::variant<OfResource, OfService, OfInterface> text;
};

// The build reads the first two entries of each row: see cmake/Generate.cmake.
constexpr Form forms[] = {
    {"classes", "services/$service$/$Resource$.h", &headerPage},
    {"classes", "services/$service$/$Resource$.cpp", &sourcePage},
    {"catalogue", "catalogue/$service$.cpp", &makersPage},
    {"catalogue", "catalogue/Table.cpp", &tablePage},
};

/// Is given the path of a file and what makes its text.
using Visit = std::function<void(std::string path, std::function<std::string()> const& text)>;

/// Goes through the files of a form.
struct FilesOfForm {
    std::string_view path;
    Interface const& interface;
    Visit const& visit;

    void operator()(OfResource text) const
    {
        for (Resource const& each : interface.resources) {
            visit(filled({{"service", each.service}, {"Resource", each.name}}),
                  [&] { return text(each, interface); });
        }
    }
    void operator()(OfService text) const
    {
        for (Service const& each : interface.services) {
            visit(filled({{"service", each.name}}), [&] { return text(each, interface); });
        }
    }
    void operator()(OfInterface text) const
    {
        visit(filled({}), [&] { return text(interface); });
    }

private:
    [[nodiscard]] std::string filled(Slots slots) const
    {
        std::string line = fill(path, std::move(slots)).at(0);
        line.pop_back(); // its end
        return line;
    }
};

} // namespace

std::vector<Page> allPages(Interface const& interface)
{
    std::vector<Page> pages;
    for (Form const& form : forms) {
        Visit const add = [&](std::string path, auto const& text) {
            pages.push_back({std::move(path), text()});
        };
        std::visit(FilesOfForm{form.path, interface, add}, form.text);
    }
    return pages;
}

std::vector<std::string> outputNames()
{
    std::vector<std::string> names;
    for (Form const& form : forms) {
        if (std::ranges::find(names, form.output) == names.end()) {
            names.emplace_back(form.output);
        }
    }
    return names;
}

std::vector<std::string> pathsOf(std::string_view output, Interface const& interface)
{
    std::vector<std::string> paths;
    for (Form const& form : forms) {
        Visit const add = [&](std::string path, auto const&) { paths.push_back(std::move(path)); };
        if (form.output == output) {
            std::visit(FilesOfForm{form.path, interface, add}, form.text);
        }
    }
    return paths;
}

} // namespace kivgen
