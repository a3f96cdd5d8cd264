#pragma once

#include "commandline/CommandLine.h"
#include "tools/kiv/Console.h"

#include <memory>
#include <string_view>

namespace kiv {

/// How a command ended, as the shell sees it. What cannot be done is thrown as `Failure`.
enum class Exit {
    Clean = 0,
    Findings = 1,
    Unable = 2,
    Interrupted = 130,
};

/// One command of the tool. It keeps what the command line gave it.
class Command {
public:
    Command() = default;
    Command(Command const&) = delete;
    Command& operator=(Command const&) = delete;
    virtual ~Command() = default;

    [[nodiscard]] virtual std::string_view name() const = 0;
    [[nodiscard]] virtual std::string_view about() const = 0;   ///< one line
    [[nodiscard]] virtual std::string_view example() const = 0; ///< a call that works as it stands

    /// Declares options and arguments; the parsed values go into this object.
    virtual void declare(commandline::Arguments arguments) = 0;

    /// Does the work. May throw `Failure`; what was printed up to then may be cut off.
    virtual Exit run(Console& console) = 0;
};

std::unique_ptr<Command> makeListCommand();
std::unique_ptr<Command> makeShowCommand();
std::unique_ptr<Command> makeFindCommand();
std::unique_ptr<Command> makeConvertCommand();
std::unique_ptr<Command> makeCheckCommand();
std::unique_ptr<Command> makeSampleCommand();
std::unique_ptr<Command> makeDiffCommand();
std::unique_ptr<Command> makeGraphCommand();
std::unique_ptr<Command> makeSchemaCommand();
std::unique_ptr<Command> makeCompatCommand();
std::unique_ptr<Command> makeTraceCommand();

} // namespace kiv
