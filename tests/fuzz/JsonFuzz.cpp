#include "catalogue/Catalogue.h"
#include "tests/fuzz/Require.h"
#include "text/Failure.h"
#include "tools/kiv/Command.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

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

using Words = std::vector<char const*>; // the command and what follows it

/// What the command prints for this text, or nothing if it refuses it.
std::optional<std::string> printed(kiv::Command& command, std::string_view json, Words const& words)
{
    inputFile().fill(json);
    outputFile().clear();
    commandline::CommandLine line("kiv", "");
    command.declare(line.arguments());
    line.parse(static_cast<int>(words.size()), words.data());
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

std::optional<std::string> converted(std::string_view json, Words const& words)
{
    return printed(*kiv::makeConvertCommand(), json, words);
}

std::optional<std::string> checked(std::string_view json, Words const& words)
{
    return printed(*kiv::makeCheckCommand(), json, words);
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
    std::string const file = inputFile().path();
    Words const check{"kiv", resource.c_str(), file.c_str()};
    Words convert = check;
    convert.insert(convert.end(), {"--form", data[1] % 2 != 0 ? "shallow" : "full"});
    if (data[1] % 4 < 2) {
        convert.push_back("--compact");
    }
    std::string_view const json{reinterpret_cast<char const*>(data) + 2, size - 2};

    auto const once = converted(json, convert);
    if (once) {
        require(converted(*once, convert) == once, "what was converted converts to itself");
        require(checked(json, check).has_value(), "what can be converted can be checked");
    } else {
        static_cast<void>(checked(json, check));
    }
    return 0;
}
