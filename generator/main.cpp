#include "commandline/CommandLine.h"
#include "generator/Output.h"
#include "generator/model/Loader.h"
#include "generator/pages/Pages.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

int run(std::filesystem::path const& definitions, std::filesystem::path const& output)
{
    kivgen::Loaded const loaded = kivgen::load(definitions);
    for (kivgen::Fault const& fault : loaded.faults) {
        std::cerr << kivgen::toMessage(fault) << '\n';
    }
    if (!loaded.faults.empty()) {
        auto const count = loaded.faults.size();
        std::cerr << "kivgen: " << count << (count == 1 ? " error" : " errors")
                  << ", nothing written\n";
        return EXIT_FAILURE;
    }
    if (!output.empty()) {
        kivgen::write(kivgen::allPages(loaded.interface), output);
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
        "  kivgen services                    check the definitions only");
    std::string definitions;
    std::string output;
    auto arguments = line.arguments();
    arguments.required("DEFINITIONS", definitions, "The folder 'services' with the definitions");
    arguments.optional("OUTPUT", output,
                       "The folder to write to; files whose text is unchanged are not touched");
    if (auto const text = line.parse(argc, argv)) {
        std::cout << *text;
        return EXIT_SUCCESS;
    }
    return run(definitions, output);
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
