#include "text/Failure.h"
#include "tools/kiv/Command.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

namespace kiv {

namespace {

namespace fs = std::filesystem;

/// The library that tells, where it is installed beside this tool or lies in the build tree.
std::string telling()
{
    fs::path const folder = fs::read_symlink("/proc/self/exe").parent_path();
    for (char const* const place : std::array{KIV_DIAGNOSTICS_INSTALLED, KIV_DIAGNOSTICS_BUILT}) {
        fs::path const library = folder / place;
        if (fs::exists(library)) {
            return fs::canonical(library.parent_path()) / library.filename();
        }
    }
    throw Failure("there is no library that tells at " +
                  (folder / KIV_DIAGNOSTICS_INSTALLED).lexically_normal().string() +
                  "; install the package zel-kiv-services-diagnostics, or name it with --library");
}

void set(char const* name, std::string const& value)
{
    if (!value.empty() && ::setenv(name, value.c_str(), 1) != 0) {
        throw Failure(std::string(name) + ": " + std::strerror(errno));
    }
}

class TraceCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "trace"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Run a program, and tell what the library drops, bends or invents in it";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv trace --json findings.jsonl -- examples/presets examples/presets.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("PROGRAM", m_program, "The program and its arguments, behind --");
        arguments.optional("--json", m_json, "Append the findings to this file, as lines of JSON");
        arguments.optional("--record", m_record, "Keep what goes in and out in this folder");
        arguments.optional("--ignore", m_ignore, "Findings to pass over, as for kiv check");
        arguments.optional("--library", m_library, "The library that tells, if it lies elsewhere");
    }

    /// Becomes the program, so that signals and the exit status are its own.
    Exit run(Console& console) override
    {
        console.output.flush();
        std::string const library = m_library.empty() ? telling() : m_library;
        char const* const before = std::getenv("LD_PRELOAD");
        set("LD_PRELOAD", before == nullptr ? library : library + ':' + before);
        set("ZEL_KIV_DIAGNOSTICS", m_json);
        set("ZEL_KIV_RECORD", m_record);
        set("ZEL_KIV_IGNORE", m_ignore);
        std::vector<char*> words;
        for (std::string& word : m_program) {
            words.push_back(word.data());
        }
        words.push_back(nullptr);
        ::execvp(words.front(), words.data());
        throw Failure(m_program.front(), std::string("cannot run: ") + std::strerror(errno));
    }

private:
    std::vector<std::string> m_program;
    std::string m_json;
    std::string m_record;
    std::string m_ignore;
    std::string m_library;
};

} // namespace

std::unique_ptr<Command> makeTraceCommand()
{
    return std::make_unique<TraceCommand>();
}

} // namespace kiv
