#include "commandline/CommandLine.h"
#include "generator/PageWriter.h"
#include "generator/model/Loader.h"
#include "generator/pages/Outputs.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

/// What the command line asks for.
struct Wishes {
    std::string definitions;
    std::string folder; ///< empty: write nothing
    std::string list;   ///< the output whose files are to be named, or empty
};

void checkOutput(std::string const& name)
{
    auto const names = kivgen::outputNames();
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        std::string known;
        for (auto const& each : names) {
            known += (known.empty() ? "'" : ", '") + each + '\'';
        }
        throw commandline::Misuse("no output '" + name + "'; there are " + known);
    }
}

int run(Wishes const& wishes)
{
    kivgen::Loaded const loaded = kivgen::load(wishes.definitions);
    for (kivgen::Fault const& fault : loaded.faults) {
        std::cerr << kivgen::toMessage(fault) << '\n';
    }
    if (!loaded.faults.empty()) {
        auto const count = loaded.faults.size();
        std::cerr << "kivgen: " << count << (count == 1 ? " error" : " errors")
                  << ", nothing written\n";
        return EXIT_FAILURE;
    }
    for (auto const& path : kivgen::pathsOf(wishes.list, loaded.interface)) {
        std::cout << path << '\n';
    }
    if (!wishes.folder.empty()) {
        kivgen::write(kivgen::allPages(loaded.interface), wishes.folder);
    }
    return EXIT_SUCCESS;
}

int runCommandLine(int argc, char const* const* argv)
{
    commandline::CommandLine line(
        "kivgen",
        "Turns the definitions of the interface into C++ classes and the catalogue's table.\n"
        "Faults in the definitions are all reported, and then nothing is written.\n\n"
        "  kivgen services build/generated    generate\n"
        "  kivgen services                    check the definitions only\n"
        "  kivgen services --list classes     name the files of one output");
    Wishes wishes;
    auto arguments = line.arguments();
    arguments.required("DEFINITIONS", wishes.definitions,
                       "The folder 'services' with the definitions");
    arguments.optional("FOLDER", wishes.folder,
                       "The folder to write to; files whose text is unchanged are not touched");
    arguments.optional("--list", wishes.list,
                       "An output, classes or catalogue: print the paths of its files");
    if (auto const text = line.parse(argc, argv)) {
        std::cout << *text;
        return EXIT_SUCCESS;
    }
    if (!wishes.list.empty()) {
        checkOutput(wishes.list);
    }
    return run(wishes);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return runCommandLine(argc, argv);
    } catch (commandline::Misuse const& fault) {
        static_cast<void>(std::fprintf(stderr, "kivgen: %s\n", fault.what()));
        return EXIT_FAILURE;
    } catch (std::exception const& fault) {
        static_cast<void>(std::fprintf(stderr, "%s\n", fault.what()));
        return EXIT_FAILURE;
    }
}
