// Writes what the benchmarks are compiled from: the fields of the interface in the forms that the
// limits and the peers need.
//   benchwriter mirror DIRECTORY SERVICE::RESOURCE...
//   benchwriter proto DIRECTORY

#include "bench/writer/Pages.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace benchwriter {

Resources reachableFrom(Resources const& roots)
{
    Resources reached;
    std::vector<Resource const*> open(roots.begin(), roots.end());
    while (!open.empty()) {
        Resource const* const resource = open.back();
        open.pop_back();
        if (!reached.insert(resource).second) {
            continue;
        }
        for (auto const& field : resource->fields) {
            open.insert(open.end(), field.targets.begin(), field.targets.end());
        }
    }
    return reached;
}

std::string raised(std::string_view text)
{
    std::string result(text);
    result.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(result.front())));
    return result;
}

} // namespace benchwriter

namespace {

using namespace benchwriter;

Resource const* resourceNamed(std::string_view name)
{
    for (Resource const& each : zel::kiv::catalogue::resources()) {
        if (std::string(each.service) + "::" + std::string(each.name) == name) {
            return &each;
        }
    }
    throw std::invalid_argument("benchwriter: there is no resource " + std::string(name));
}

/// A file that has not changed is left alone, so that nothing is built again for it.
void write(std::filesystem::path const& path, std::string const& text)
{
    std::ifstream old(path, std::ios::binary);
    if (old && std::string(std::istreambuf_iterator<char>(old), {}) == text) {
        return;
    }
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) {
        throw std::runtime_error("benchwriter: cannot write " + path.string());
    }
}

} // namespace

int main(int count, char** arguments)
try {
    std::vector<std::string> const words(arguments + 1, arguments + count);
    if (words.size() < 2 || (words[0] != "mirror" && words[0] != "proto")) {
        std::cerr << "usage: benchwriter mirror DIRECTORY SERVICE::RESOURCE...\n"
                     "       benchwriter proto DIRECTORY\n";
        return 2;
    }
    std::vector<Resource const*> roots;
    std::transform(words.begin() + 2, words.end(), std::back_inserter(roots), resourceNamed);
    Files const files = words[0] == "proto"
                            ? protoPages()
                            : mirrorPage(reachableFrom({roots.begin(), roots.end()}), roots);
    std::filesystem::create_directories(words[1]);
    for (auto const& [name, text] : files) {
        write(std::filesystem::path(words[1]) / name, text);
    }
    return 0;
} catch (std::exception const& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
}
