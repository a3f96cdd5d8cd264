#include "commandline/CommandLine.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Graph.h"
#include "tools/reference/IndexPage.h"

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

int run(int argc, char const* const* argv)
{
    commandline::CommandLine line("kivreference", "Writes the browsable reference");
    std::string folder;
    line.command("graphs", "Write the link graphs for Graphviz")
        .required("FOLDER", folder, "Where to write SERVICE.dot");

    std::string templates;
    std::string pictures;
    std::string silence;
    std::string page;
    auto index = line.command("page", "Write the page");
    index.required("--templates", templates, "The folder of the templates");
    index.required("--pictures", pictures, "The folder of the drawn graphs");
    index.required("--silence", silence, "HTML that tells what goes in wrong");
    index.required("FILE", page, "The page to write");
    if (auto const text = line.parse(argc, argv)) {
        std::cout << *text;
        return EXIT_SUCCESS;
    }
    if (line.called() == "graphs") {
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
