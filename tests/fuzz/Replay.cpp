#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

/// Runs a fuzz target over the files of folders, for compilers that have no fuzzer.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(fs::path const& folder)
{
    std::vector<fs::path> files;
    for (auto const& entry : fs::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void run(fs::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<char> const bytes{std::istreambuf_iterator<char>(file), {}};
    std::printf("%s\n", path.filename().c_str());
    std::fflush(stdout); // it is the last word if this one ends the process
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t count = 0;
    for (int index = 1; index < argc; ++index) {
        for (fs::path const& path : filesIn(argv[index])) {
            run(path);
            ++count;
        }
    }
    return count == 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}
