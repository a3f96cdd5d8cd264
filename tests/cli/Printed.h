#pragma once

#include "text/Output.h"

#include <cstdio>
#include <functional>
#include <string>
#include <unistd.h>

namespace kiv {

/// What `print` writes to the output.
inline std::string printed(std::function<void(Output&)> const& print)
{
    std::FILE* const file = std::tmpfile();
    Output output(fileno(file));
    print(output);
    output.flush();
    std::string text(static_cast<std::size_t>(lseek(fileno(file), 0, SEEK_CUR)), '\0');
    text.resize(static_cast<std::size_t>(pread(fileno(file), text.data(), text.size(), 0)));
    std::fclose(file);
    return text;
}

} // namespace kiv
