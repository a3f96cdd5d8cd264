#include "json/InputFile.h"

#include "text/Failure.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace kiv {

namespace {

std::size_t readFrom(std::FILE* file, std::string const& name, std::span<char> buffer)
{
    std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), file);
    if (std::ferror(file) != 0 && errno == EINTR) {
        std::clearerr(file);
    } else if (std::ferror(file) != 0) {
        throw Failure(name, std::string("cannot read: ") + std::strerror(errno));
    }
    return count;
}

} // namespace

InputFile openInput(std::string const& path)
{
    if (path == "-") {
        std::string const name = "<stdin>";
        return {name, STDIN_FILENO,
                [name](std::span<char> buffer) { return readFrom(stdin, name, buffer); }};
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
    return {path, fileno(file.get()),
            [file, path](std::span<char> buffer) { return readFrom(file.get(), path, buffer); }};
}

} // namespace kiv
