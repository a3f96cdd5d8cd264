#include "diagnostics/Origin.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <memory>
#include <sstream>

namespace kiv::diagnostics {

namespace {

std::string readable(char const* symbol)
{
    std::unique_ptr<char, decltype(&std::free)> const name(
        abi::__cxa_demangle(symbol, nullptr, nullptr, nullptr), &std::free);
    return name == nullptr ? symbol : name.get();
}

std::string textOf(Dl_info const& place, void const* address)
{
    std::ostringstream text;
    if (place.dli_sname != nullptr) {
        text << readable(place.dli_sname) << " in ";
    }
    auto const offset = reinterpret_cast<std::uintptr_t>(address) -
                        reinterpret_cast<std::uintptr_t>(place.dli_fbase);
    text << place.dli_fname << "+0x" << std::hex << offset;
    return text.str();
}

} // namespace

std::string originText()
{
    Dl_info own{};
    dladdr(reinterpret_cast<void const*>(&originText), &own);
    std::array<void*, 256> frames{};
    int const count = backtrace(frames.data(), static_cast<int>(frames.size()));
    for (int i = 0; i < count; ++i) {
        Dl_info place{};
        void const* const address = frames[static_cast<std::size_t>(i)];
        // The platform's libraries lie between two of ours; its visitor calls ours back.
        if (dladdr(address, &place) != 0 && place.dli_fbase != own.dli_fbase &&
            std::string(place.dli_fname).find("libzel.dataformats") == std::string::npos) {
            return textOf(place, address);
        }
    }
    return "somewhere unknown";
}

} // namespace kiv::diagnostics
