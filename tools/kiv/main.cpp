#include "Command.h"
#include "Failure.h"
#include "catalogue/Suggestion.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>
#include <sstream>
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

void declare(CLI::App& app, Commands const& commands)
{
    app.name("kiv");
    app.set_version_flag("--version", "kiv " KIV_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->column_width(32);
    app.footer("Resources are named as in uris: radio/presets.\n"
               "Exit codes: 0 clean, 1 findings, 2 cannot do it.\n"
               "Help and an example for one command: kiv COMMAND --help");
    for (auto const& command : commands) {
        CLI::App* const sub =
            app.add_subcommand(std::string(command->name()), std::string(command->about()));
        sub->footer("Example: " + std::string(command->example()));
        command->declare(*sub);
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
        throw kiv::Failure("no command '" + word + "'" +
                           zel::kiv::catalogue::didYouMean(word, names) +
                           " (kiv --help shows all)");
    }
}

kiv::Exit runParsed(CLI::App const& app, Commands const& commands, kiv::Console& console)
{
    for (auto const& command : commands) {
        if (app.got_subcommand(std::string(command->name()))) {
            return command->run(console);
        }
    }
    return kiv::Exit::Unable;
}

kiv::Exit run(int argc, char const* const* argv, kiv::Console& console)
{
    CLI::App app("Looks things up in the service interface, and shows what the library makes of "
                 "data.");
    Commands const commands = allCommands();
    declare(app, commands);
    refuseUnknownCommand(argc, argv, commands);
    try {
        app.parse(argc, argv);
    } catch (CLI::Success const& wish) { // --help or --version
        std::ostringstream text;
        app.exit(wish, text, text);
        console.output.write(text.str());
        return kiv::Exit::Clean;
    } catch (CLI::ParseError const& fault) {
        auto const used = app.get_subcommands();
        std::string const call = used.empty() ? "kiv" : "kiv " + used.front()->get_name();
        throw kiv::Failure(std::string(fault.what()) + " (" + call + " --help shows how)");
    }
    return runParsed(app, commands, console);
}

void complain(std::string const& where, std::string const& what)
{
    kiv::Style const style(STDERR_FILENO);
    std::string const line = style.strong(where + ":") + " " + style.error("error:") + " " + what;
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
