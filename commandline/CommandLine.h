#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace commandline {

/// Declares what a program, or one command of it, takes. Everything parsed goes into the targets,
/// which must live until then; a target keeps its value where the command line gives none.
class Arguments {
public:
    explicit Arguments(CLI::App& app) : m_app(&app) {}

    /// An argument by position, or an option if the name is one, such as `--form`.
    void required(std::string const& name, std::string& target, std::string const& about);
    void required(std::string const& name, std::vector<std::string>& targets,
                  std::string const& about);
    void optional(std::string const& name, std::string& target, std::string const& about);

    void flag(std::string const& name, bool& target, std::string const& about);

    /// One of a few values; the help shows that of the target as the default.
    void choice(std::string const& name, std::string& target,
                std::vector<std::string> const& allowed, std::string const& about);
    void number(std::string const& name, int& target, int lowest, int highest,
                std::string const& about);

private:
    CLI::App* m_app;
};

/// The command line does not fit what was declared. The text says what is wrong and where help is.
class Misuse : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command line of a program.
class CommandLine {
public:
    /// @param name   the program, as it is called
    /// @param about  what it is for
    CommandLine(std::string const& name, std::string const& about);
    CommandLine(CommandLine const&) = delete;
    CommandLine& operator=(CommandLine const&) = delete;
    ~CommandLine();

    /// What the program takes itself.
    [[nodiscard]] Arguments arguments();

    /// Adds a command; from then on one is required.
    Arguments command(std::string const& name, std::string const& about,
                      std::string const& footer = {});

    void version(std::string const& text); ///< what `--version` shows
    void footer(std::string const& text);  ///< the last lines of the help

    /// Puts the words into the targets. Gives the text to show instead of working if `--help` or
    /// `--version` asked for one. Throws `Misuse`.
    std::optional<std::string> parse(int argc, char const* const* argv);

    /// The command that was called; empty if there are none.
    [[nodiscard]] std::string called() const;

private:
    std::unique_ptr<CLI::App> m_app;
};

} // namespace commandline
