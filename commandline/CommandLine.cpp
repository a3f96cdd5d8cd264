#include "CommandLine.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace commandline {

namespace {

constexpr std::size_t nameColumn = 32; // as wide as the longest option with its default

} // namespace

void Arguments::required(std::string const& name, std::string& target, std::string const& about)
{
    m_app->add_option(name, target, about)->required();
}

void Arguments::required(std::string const& name, std::vector<std::string>& targets,
                         std::string const& about)
{
    m_app->add_option(name, targets, about)->required();
}

void Arguments::optional(std::string const& name, std::string& target, std::string const& about)
{
    m_app->add_option(name, target, about);
}

void Arguments::flag(std::string const& name, bool& target, std::string const& about)
{
    m_app->add_flag(name, target, about);
}

void Arguments::choice(std::string const& name, std::string& target,
                       std::vector<std::string> const& allowed, std::string const& about)
{
    m_app->add_option(name, target, about)->check(CLI::IsMember(allowed))->capture_default_str();
}

void Arguments::number(std::string const& name, int& target, int lowest, int highest,
                       std::string const& about)
{
    m_app->add_option(name, target, about)
        ->check(CLI::Range(lowest, highest))
        ->capture_default_str();
}

CommandLine::CommandLine(std::string const& name, std::string const& about)
    : m_app(std::make_unique<CLI::App>(about, name))
{
    m_app->get_formatter()->column_width(nameColumn);
}

CommandLine::~CommandLine() = default;

Arguments CommandLine::arguments()
{
    return Arguments(*m_app);
}

Arguments CommandLine::command(std::string const& name, std::string const& about,
                               std::string const& footer)
{
    m_app->require_subcommand(1);
    CLI::App* const command = m_app->add_subcommand(name, about);
    command->footer(footer);
    return Arguments(*command);
}

void CommandLine::version(std::string const& text)
{
    m_app->set_version_flag("-V,--version", text);
}

void CommandLine::footer(std::string const& text)
{
    m_app->footer(text);
}

std::optional<std::string> CommandLine::parse(int argc, char const* const* argv)
{
    try {
        m_app->parse(argc, argv);
    } catch (CLI::Success const& wish) {
        std::ostringstream text;
        m_app->exit(wish, text, text);
        return text.str();
    } catch (CLI::ParseError const& fault) {
        std::string const command = called();
        throw Misuse(std::string(fault.what()) + " (" + m_app->get_name() +
                     (command.empty() ? "" : " " + command) + " --help shows how)");
    }
    return std::nullopt;
}

std::string CommandLine::called() const
{
    auto const commands = m_app->get_subcommands();
    return commands.empty() ? std::string() : commands.front()->get_name();
}

} // namespace commandline
