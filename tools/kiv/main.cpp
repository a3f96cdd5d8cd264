#include "text/Failure.h"
#include "text/Printable.h"
#include "text/Suggestion.h"
#include "tools/kiv/Command.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using Commands = std::vector<std::unique_ptr<kiv::Command>>;

Commands allCommands()
{
    Commands commands;
    commands.push_back(kiv::makeListCommand());
    commands.push_back(kiv::makeShowCommand());
    commands.push_back(kiv::makeFindCommand());
    commands.push_back(kiv::makeGraphCommand());
    commands.push_back(kiv::makeSampleCommand());
    commands.push_back(kiv::makeConvertCommand());
    commands.push_back(kiv::makeCheckCommand());
    commands.push_back(kiv::makeDiffCommand());
    commands.push_back(kiv::makeSchemaCommand());
    return commands;
}

void declare(commandline::CommandLine& line, Commands const& commands)
{
    line.version("kiv " KIV_VERSION);
    line.footer("Resources are named as in uris: radio/presets.\n"
                "Exit codes: 0 clean, 1 findings, 2 cannot do it.\n"
                "Help and an example for one command: kiv COMMAND --help");
    for (auto const& command : commands) {
        command->declare(line.command(std::string(command->name()), std::string(command->about()),
                                      "Example: " + std::string(command->example())));
    }
}

/// The parser only says that a word was not expected; here it is known that a command was.
void refuseUnknownCommand(int argc, char const* const* argv, Commands const& commands)
{
    std::string const word = argc > 1 ? argv[1] : "";
    if (word.empty() || word.front() == '-') {
        return;
    }
    std::vector<std::string_view> names;
    for (auto const& command : commands) {
        names.push_back(command->name());
    }
    if (std::find(names.begin(), names.end(), word) == names.end()) {
        throw kiv::Failure("no command '" + word + "'" + kiv::didYouMean(word, names) +
                           " (kiv --help shows all)");
    }
}

kiv::Exit run(int argc, char const* const* argv, kiv::Console& console)
{
    commandline::CommandLine line(
        "kiv",
        "Looks things up in the service interface, and shows what the library makes of data.");
    Commands const commands = allCommands();
    declare(line, commands);
    refuseUnknownCommand(argc, argv, commands);
    if (auto const text = line.parse(argc, argv)) {
        console.output.write(*text);
        return kiv::Exit::Clean;
    }
    auto const called = std::find_if(commands.begin(), commands.end(), [&](auto const& command) {
        return command->name() == line.called();
    });
    return (*called)->run(console);
}

void complain(std::string const& where, std::string const& what)
{
    kiv::Style const style(STDERR_FILENO);
    std::string const line = style.strong(kiv::printable(where) + ":") + " " +
                             style.error("error:") + " " + kiv::printable(what);
    static_cast<void>(std::fprintf(stderr, "%s\n", line.c_str()));
}

} // namespace

int main(int argc, char** argv)
{
    try {
        kiv::Console console{kiv::Output(STDOUT_FILENO), kiv::Style(STDOUT_FILENO)};
        kiv::Exit const exit = run(argc, argv, console);
        console.output.flush();
        return static_cast<int>(exit);
    } catch (kiv::Failure const& failure) {
        complain(failure.where(), failure.what());
    } catch (std::bad_alloc const&) {
        complain("kiv", "out of memory");
    } catch (std::exception const& fault) {
        complain("kiv", fault.what());
    }
    return static_cast<int>(kiv::Exit::Unable);
}
