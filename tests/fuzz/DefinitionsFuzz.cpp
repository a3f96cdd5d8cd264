#include "generator/model/Loader.h"
#include "generator/pages/Outputs.h"
#include "generator/pages/Pages.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

/// Bytes as a folder of definitions: loaded, and generated from if nothing is wrong with them.
namespace {

namespace fs = std::filesystem;

/// A folder of this process alone, gone when it ends.
class Folder {
public:
    Folder() : m_path(fs::temp_directory_path() / ("kivgen-fuzz-" + std::to_string(getpid())))
    {
        fs::create_directories(m_path);
    }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;
    ~Folder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    [[nodiscard]] fs::path services() const { return m_path / "services"; }

private:
    fs::path m_path;
};

constexpr std::string_view mark = "#file ";

/// A name that stays inside the folder: `radio/Presets.toml`.
bool isHarmless(std::string_view name)
{
    return name.size() < 60 && std::ranges::count(name, '/') == 1 && !name.starts_with('/') &&
           !name.starts_with('.') && name.find("/.") == name.npos && !name.ends_with('/') &&
           name.find('\0') == name.npos;
}

void writeFile(fs::path const& services, std::string_view name, std::string_view text)
{
    fs::path const path = services / (isHarmless(name) ? name : "radio/Presets.toml");
    std::error_code ignored; // a name may be too long, or taken
    fs::create_directories(path.parent_path(), ignored);
    std::ofstream(path, std::ios::binary) << text;
}

/// A line `#file radio/Presets.toml` begins a file.
void writeFiles(fs::path const& services, std::string_view text)
{
    std::string_view name;
    while (!text.empty()) {
        if (text.starts_with(mark)) {
            auto const end = std::min(text.find('\n'), text.size());
            name = text.substr(mark.size(), end - mark.size());
        }
        auto const next = text.find("\n#file ");
        writeFile(services, name, text.substr(0, next));
        text.remove_prefix(next == text.npos ? text.size() : next + 1);
    }
}

/// A folder that cannot be read is named by its whole path, everything else within it.
bool isClean(std::string const& message, fs::path const& services)
{
    bool const isNamed =
        message.starts_with("services") || message.starts_with(services.string() + ": ");
    return isNamed && std::ranges::none_of(
                          message, [](unsigned char each) { return each < 0x20U && each != '\n'; });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static Folder const folder;
    writeFiles(folder.services(), {reinterpret_cast<char const*>(data), size});
    auto const loaded = kivgen::load(folder.services());
    for (auto const& fault : loaded.faults) {
        fuzz::require(isClean(kivgen::toMessage(fault), folder.services()),
                      "a message is clean lines");
    }
    if (loaded.faults.empty()) {
        for (auto const& page : kivgen::allPages(loaded.interface)) {
            fuzz::require(page.text.starts_with(kivgen::generatedMark), "a page has its mark");
        }
    }
    fs::remove_all(folder.services());
    return 0;
}
