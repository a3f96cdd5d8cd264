#include "tools/kiv/Progress.h"

#include "tools/kiv/Console.h"
#include "tools/kiv/Interrupt.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kiv {

namespace {

constexpr std::size_t large = 16UL * 1024 * 1024; // a fraction of a second
constexpr std::size_t width = 30;
constexpr std::string_view wiped = "\r\x1b[K";

/// The size of a regular file, 0 of anything else.
std::size_t sizeOf(int descriptor)
{
    struct stat state {};
    bool const regular = fstat(descriptor, &state) == 0 && S_ISREG(state.st_mode);
    return regular ? static_cast<std::size_t>(state.st_size) : 0;
}

void toStandardError(std::string_view text)
{
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
}

} // namespace

Progress::~Progress()
{
    try {
        wipe();
    } catch (...) { // a bar that stays is no harm
    }
}

void Progress::advance(std::size_t bytes)
{
    m_done += bytes;
    if (bytes == 0) {
        wipe();
        return;
    }
    // The file may have grown since its size was asked for.
    std::size_t const percent = std::min<std::size_t>(m_done * 100 / m_total, 100);
    if (percent + 1 == m_shown) {
        return;
    }
    m_shown = percent + 1;
    std::size_t const filled = percent * width / 100;
    m_sink(std::string(wiped) + m_name + " [" + std::string(filled, '#') +
           std::string(width - filled, ' ') + "] " + std::to_string(percent) + "%");
}

void Progress::wipe()
{
    if (m_shown != 0) {
        m_shown = 0;
        m_sink(wiped);
    }
}

InputFile openWithProgress(std::string const& path)
{
    InputFile input = openInput(path);
    input.source = [source = std::move(input.source)](std::span<char> buffer) {
        std::size_t const count = source(buffer);
        throwIfInterrupted();
        return count;
    };
    std::size_t const size = sizeOf(input.descriptor);
    if (size < large || isatty(STDOUT_FILENO) != 0 || !redraws(STDERR_FILENO)) {
        return input;
    }
    // Shared, since a std::function must be able to copy what it holds.
    auto const bar = std::make_shared<Progress>(input.name, size, toStandardError);
    input.source = [bar, source = std::move(input.source)](std::span<char> buffer) {
        std::size_t const count = source(buffer);
        bar->advance(count);
        return count;
    };
    return input;
}

} // namespace kiv
