#include "Command.h"
#include "Failure.h"
#include "catalogue/Catalogue.h"
#include "tests/fuzz/Require.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

/// Bytes as a JSON file for `kiv convert` and `kiv check`. The first byte picks the resource, the
/// second the form.
namespace {

using fuzz::require;

/// A file in memory, with a path.
class MemoryFile {
public:
    MemoryFile() : m_descriptor(memfd_create("kiv-fuzz", 0))
    {
        require(m_descriptor >= 0, "there is memory for a file");
    }
    MemoryFile(MemoryFile const&) = delete;
    MemoryFile& operator=(MemoryFile const&) = delete;
    ~MemoryFile() { close(m_descriptor); }

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] std::string path() const
    {
        return "/proc/self/fd/" + std::to_string(m_descriptor);
    }

    void fill(std::string_view text) const
    {
        clear();
        require(write(m_descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size()),
                "a file in memory takes what is written");
    }

    void clear() const
    {
        require(ftruncate(m_descriptor, 0) == 0 && lseek(m_descriptor, 0, SEEK_SET) == 0,
                "a file in memory can be emptied");
    }

    [[nodiscard]] std::string text() const
    {
        std::string text(static_cast<std::size_t>(lseek(m_descriptor, 0, SEEK_CUR)), '\0');
        require(pread(m_descriptor, text.data(), text.size(), 0) ==
                    static_cast<ssize_t>(text.size()),
                "a file in memory can be read");
        return text;
    }

private:
    int m_descriptor;
};

MemoryFile const& inputFile()
{
    static MemoryFile const file;
    return file;
}

MemoryFile const& outputFile()
{
    static MemoryFile const file;
    return file;
}

/// What the command prints for this text, or nothing if it refuses it.
std::optional<std::string> printed(kiv::Command& command, std::string_view json,
                                   std::string const& arguments)
{
    inputFile().fill(json);
    outputFile().clear();
    CLI::App app;
    command.declare(app);
    app.parse(arguments);
    kiv::Console console{kiv::Output(outputFile().descriptor()),
                         kiv::Style(outputFile().descriptor())};
    try {
        command.run(console);
    } catch (kiv::Failure const& failure) {
        require(failure.where().starts_with(inputFile().path()), "a message names the file");
        return std::nullopt;
    }
    console.output.flush();
    return outputFile().text();
}

std::optional<std::string> converted(std::string_view json, std::string const& arguments)
{
    return printed(*kiv::makeConvertCommand(), json, arguments);
}

std::optional<std::string> checked(std::string_view json, std::string const& arguments)
{
    return printed(*kiv::makeCheckCommand(), json, arguments);
}

std::string nameOf(zel::kiv::catalogue::Resource const& resource)
{
    return std::string(resource.service) + '/' + std::string(resource.resourceKey);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    auto const all = zel::kiv::catalogue::resources();
    std::string const resource = nameOf(all[data[0] % all.size()]);
    std::string const place = resource + ' ' + inputFile().path();
    std::string const arguments = place + (data[1] % 2 != 0 ? " --form shallow" : " --form full") +
                                  (data[1] % 4 < 2 ? " --compact" : "");
    std::string_view const json{reinterpret_cast<char const*>(data) + 2, size - 2};

    auto const once = converted(json, arguments);
    if (once) {
        require(converted(*once, arguments) == once, "what was converted converts to itself");
        require(checked(json, place).has_value(), "what can be converted can be checked");
    } else {
        static_cast<void>(checked(json, place));
    }
    return 0;
}
