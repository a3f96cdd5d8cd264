#include "Lookup.h"
#include "tools/reference/Graph.h"
#include "tools/reference/IndexPage.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

using namespace reference;

void writeFile(fs::path const& file, std::string const& text)
{
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream) {
        throw std::runtime_error(file.string() + ": cannot be written");
    }
}

void writeGraphs(fs::path const& folder)
{
    for (auto const service : kiv::services()) {
        std::string const graph = graphOf(service);
        if (!graph.empty()) {
            writeFile(folder / (std::string(service) + ".dot"), graph);
        }
    }
}

int run(int argc, char** argv)
{
    CLI::App app("Writes the browsable reference");
    app.require_subcommand(1);
    fs::path folder;
    auto* const graphs = app.add_subcommand("graphs", "Write the link graphs for Graphviz");
    graphs->add_option("FOLDER", folder, "Where to write SERVICE.dot")->required();

    fs::path templates;
    fs::path pictures;
    fs::path silence;
    fs::path page;
    auto* const index = app.add_subcommand("page", "Write the page");
    index->add_option("--templates", templates, "The folder of the templates")->required();
    index->add_option("--pictures", pictures, "The folder of the drawn graphs")->required();
    index->add_option("--silence", silence, "HTML that tells what goes in wrong")->required();
    index->add_option("FILE", page, "The page to write")->required();
    CLI11_PARSE(app, argc, argv);

    if (*graphs) {
        writeGraphs(folder);
    } else {
        writeFile(page, indexPage({Templates(templates), pictures, silence}));
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (std::exception const& fault) {
        std::cerr << "kivreference: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
