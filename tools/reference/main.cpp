#include "commandline/CommandLine.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Graph.h"
#include "tools/reference/Pages.h"

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <set>
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
    for (auto const& service : kiv::catalogue::services()) {
        std::string const graph = graphOf(service.name);
        if (!graph.empty()) {
            writeFile(folder / (std::string(service.name) + ".dot"), graph);
        }
    }
}

/// Writes pages side by side into a folder, none over another.
class Writer {
public:
    Writer(fs::path folder, Templates const& templates)
        : m_folder(std::move(folder)), m_templates(templates)
    {
    }

    void write(Page const& page)
    {
        if (!m_written.insert(page.address).second) {
            throw std::runtime_error("two pages want to be " + page.address +
                                     "; a service is called as a page of the guide");
        }
        writeFile(m_folder / page.address, wholePage(page, m_templates));
    }

private:
    fs::path m_folder;
    Templates const& m_templates;
    std::set<std::string> m_written;
};

void writePages(fs::path const& folder, Sources const& sources)
{
    Writer writer(folder, sources.templates);
    writer.write(startPage(sources));
    writer.write(framePage(sources));
    writer.write(kindsPage(sources));
    writer.write(silencePage(sources));
    for (auto const& service : kiv::catalogue::services()) {
        writer.write(servicePage(service, sources));
        for (auto const& resource : service.resources) {
            writer.write(resourcePage(resource, sources));
        }
    }
    writeFile(folder / "names.js", namesScript(sources));
}

/// The types that clients see beside the classes of the services, in the order of their page; one
/// resource stands for all.
std::vector<Type> frameTypes(fs::path const& headers)
{
    auto types = readTypes(headers, {"IResourceBase", "radio::Presets", "IObjectBase",
                                     "SerializationType", "ExternalResourceObject",
                                     "ExternalResourceObjectDeserializer", "ElementStatus"});
    types.back().operations = readConstants(headers); // the two tables of the statuses
    return types;
}

int run(int argc, char const* const* argv)
{
    commandline::CommandLine line("kivreference", "Writes the browsable reference");
    std::string folder;
    line.command("graphs", "Write the link graphs for Graphviz")
        .required("FOLDER", folder, "Where to write SERVICE.dot");

    std::string templates;
    std::string pictures;
    std::string texts;
    std::string headers;
    std::string version;
    std::string pages;
    auto command = line.command("pages", "Write the pages");
    command.required("--templates", templates, "The folder of the templates");
    command.required("--pictures", pictures, "The folder of the drawn graphs");
    command.required("--texts", texts, "The folder of the documents as HTML");
    command.required("--headers", headers, "The folder of what Doxygen says of the headers");
    command.required("--version", version, "The version of the library");
    command.required("FOLDER", pages, "Where to write the pages");
    if (auto const text = line.parse(argc, argv)) {
        std::cout << *text;
        return EXIT_SUCCESS;
    }
    if (line.called() == "graphs") {
        writeGraphs(folder);
        return EXIT_SUCCESS;
    }
    auto const frame = frameTypes(headers);
    writePages(pages, {Templates(templates), pictures, texts, version, frame, Prose(frame)});
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
