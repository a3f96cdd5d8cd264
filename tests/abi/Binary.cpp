#include "tests/abi/Binary.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace binary {

namespace {

std::vector<std::string> linesOf(std::string const& command)
{
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        throw std::runtime_error("cannot run: " + command);
    }
    std::string text;
    std::array<char, 65536> buffer{};
    for (std::size_t got = 1; got > 0;) {
        got = fread(buffer.data(), 1, buffer.size(), pipe);
        text.append(buffer.data(), got);
    }
    if (pclose(pipe) != 0) {
        throw std::runtime_error("failed: " + command);
    }
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, from.size(), to);
    }
}

std::string demangled(std::string const& symbol)
{
    int status = 0;
    std::unique_ptr<char, decltype(&std::free)> const text(
        abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status), &std::free);
    return status == 0 ? text.get() : symbol;
}

/// Whether the name is that of a constructor or destructor without parameters.
bool isOfLife(std::string const& name)
{
    static std::regex const life(R"((^|.*::)(\w+)::~?\2\(\))");
    return std::regex_match(name, life);
}

} // namespace

std::vector<std::string> readelf(std::string const& options, std::string const& file)
{
    return linesOf(std::string(ABI_READELF) + " --wide " + options + " '" + file + "'");
}

std::size_t countOf(std::string const& text, std::vector<std::string> const& lines)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        lines, [&](std::string const& line) { return line.find(text) != std::string::npos; }));
}

std::vector<Symbol> exportsOf(std::string const& file)
{
    std::vector<Symbol> symbols;
    for (std::string const& line : readelf("--dyn-syms", file)) {
        std::istringstream words(line);
        std::string number, value, size, type, binding, visibility, section, name;
        words >> number >> value >> size >> type >> binding >> visibility >> section >> name;
        if (name.empty() || section == "UND" || type == "SECTION" || number == "Num:") {
            continue;
        }
        symbols.push_back({name, std::strtoull(size.c_str(), nullptr, 0)});
    }
    return symbols;
}

std::string readable(std::string const& symbol)
{
    static std::regex const owner(R"(std::unique_ptr<([\w:]+), std::default_delete<\1> >)");
    std::string name = demangled(symbol);
    replaceAll(name, "[abi:cxx11]", "");
    replaceAll(name,
               "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >",
               "std::string");
    replaceAll(name, "zel::kiv::common::", "");
    if (name.find("unique_ptr") != std::string::npos) {
        name = std::regex_replace(name, owner, "std::unique_ptr<$1>");
    }
    return isOfLife(name) ? name + " [" + symbol.substr(symbol.size() - 4, 2) + ']' : name;
}

} // namespace binary
