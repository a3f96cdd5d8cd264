#include "json/InputFile.h"

#include "text/Failure.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace kiv {

namespace {

/// What there is, so that what comes slowly through a pipe is not waited for. An interrupt ends the
/// text.
std::size_t readFrom(int descriptor, std::string const& name, std::span<char> buffer)
{
    ssize_t const count = read(descriptor, buffer.data(), buffer.size());
    if (count < 0 && errno != EINTR) {
        throw Failure(name, std::string("cannot read: ") + std::strerror(errno));
    }
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

} // namespace

InputFile openInput(std::string const& path)
{
    if (path == "-") {
        std::string const name = "<stdin>";
        return {name, STDIN_FILENO,
                [name](std::span<char> buffer) { return readFrom(STDIN_FILENO, name, buffer); }};
    }
    // Shared, since a std::function must be able to copy what it holds.
    std::shared_ptr<std::FILE> const file(std::fopen(path.c_str(), "rbe"), [](std::FILE* opened) {
        if (opened != nullptr) {
            static_cast<void>(std::fclose(opened)); // it was only read
        }
    });
    if (file == nullptr) {
        throw Failure(path, std::string("cannot open: ") + std::strerror(errno));
    }
    return {path, fileno(file.get()), [file, path](std::span<char> buffer) {
                return readFrom(fileno(file.get()), path, buffer);
            }};
}

} // namespace kiv
