#include "text/Failure.h"
#include "text/Suggestion.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Interrupt.h"
#include "tools/kiv/OutputFile.h"

#include <algorithm>
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
    commands.push_back(kiv::makeCompatCommand());
    commands.push_back(kiv::makeTraceCommand());
    return commands;
}

void declare(commandline::CommandLine& line, Commands const& commands, std::string& output)
{
    line.version("kiv " KIV_VERSION);
    line.footer("Resources are named as in uris, radio/presets, or by class, uri or header.\n"
                "Exit codes: 0 clean, 1 findings, 2 cannot do it, 130 interrupted.\n"
                "Help and an example for one command: kiv help COMMAND");
    for (auto const& command : commands) {
        auto arguments = line.command(std::string(command->name()), std::string(command->about()),
                                      "Example: " + std::string(command->example()));
        command->declare(arguments);
        arguments.optional("-o,--output", output, "Write to this file, whole or not at all");
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

/// `kiv help COMMAND` is `kiv COMMAND --help`.
std::vector<char const*> withHelp(int argc, char const* const* argv)
{
    std::vector<char const*> words(argv, argv + argc);
    if (argc > 1 && std::string_view(words[1]) == "help") {
        words.erase(words.begin() + 1);
        words.resize(std::min<std::size_t>(words.size(), 2));
        words.push_back("--help");
    }
    return words;
}

/// Runs the command with its result going to a file or, if that has no name, to standard output.
kiv::Exit run(kiv::Command& command, std::string const& path)
{
    if (path.empty()) {
        kiv::Console console{kiv::Output(STDOUT_FILENO), kiv::Style(STDOUT_FILENO)};
        kiv::Exit const exit = command.run(console);
        console.output.flush();
        return exit;
    }
    kiv::OutputFile file(path);
    kiv::Console console{kiv::Output(file.descriptor()), kiv::Style(file.descriptor())};
    kiv::Exit const exit = command.run(console);
    console.output.flush();
    file.keep();
    return exit;
}

kiv::Exit run(std::vector<char const*> const& words)
{
    commandline::CommandLine line(
        "kiv",
        "Looks things up in the service interface, and shows what the library makes of data.");
    Commands const commands = allCommands();
    std::string output;
    declare(line, commands, output);
    int const count = static_cast<int>(words.size());
    refuseUnknownCommand(count, words.data(), commands);
    if (auto const text = line.parse(count, words.data())) {
        kiv::Output shown(STDOUT_FILENO);
        shown.write(*text);
        shown.flush();
        return kiv::Exit::Clean;
    }
    auto const called = std::find_if(commands.begin(), commands.end(), [&](auto const& command) {
        return command->name() == line.called();
    });
    kiv::noteInterrupts();
    return run(**called, output);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return static_cast<int>(run(withHelp(argc, argv)));
    } catch (kiv::Interrupted const&) {
        return static_cast<int>(kiv::Exit::Interrupted);
    } catch (kiv::Failure const& failure) {
        kiv::complain(failure.where(), failure.what());
    } catch (std::bad_alloc const&) {
        kiv::complain("kiv", "out of memory");
    } catch (std::exception const& fault) {
        kiv::complain("kiv", fault.what());
    }
    return static_cast<int>(kiv::Exit::Unable);
}
