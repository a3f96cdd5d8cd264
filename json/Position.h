#pragma once

#include <cstddef>
#include <string>

namespace kiv::json {

/// A place in a text, as editors count: from 1, columns in characters (code points, not bytes).
struct Position {
    std::size_t line = 1;
    std::size_t column = 1;
};

/// `presets.json:3:14`
inline std::string placeText(std::string const& file, Position position)
{
    return file + ":" + std::to_string(position.line) + ":" + std::to_string(position.column);
}

} // namespace kiv::json
