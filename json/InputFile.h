#pragma once

#include "json/PositionedStream.h"

#include <string>

namespace kiv {

/// A file to read from, or standard input for `-`.
struct InputFile {
    std::string name; ///< as messages show it
    int descriptor;   ///< open as long as the source lives
    json::ByteSource source;
};

/// Opens it. Throws `Failure` if that is not possible; so does the source if reading fails.
InputFile openInput(std::string const& path);

} // namespace kiv
