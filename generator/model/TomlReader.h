#pragma once

#include "generator/model/Fault.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kivgen {

struct Entry;

/// A value in a definition file. Definitions know texts, lists and tables; every other type is told
/// apart by its name alone.
struct Node {
    enum class Type { Text, List, Table, Other };

    Type type = Type::Other;
    std::string_view typeName; ///< for messages: `an integer`
    SourcePosition place;
    std::string text;         ///< of a text
    std::vector<Node> list;   ///< of a list
    std::vector<Entry> table; ///< of a table, in the order of the file
    bool isWhole = true;      ///< of a file: whether nothing was left out that could not be read
};

/// A key and its value.
struct Entry {
    std::string key;
    SourcePosition place; ///< of the key
    Node value;
};

/// Reads one file into a table. `name` is the file as messages show it. If the file cannot be read,
/// is too large, or is not TOML, that is added to `faults`. The result then holds the lines that
/// can be read, or is empty where that is no use.
std::optional<Node> readToml(std::filesystem::path const& path, std::string const& name,
                             Faults& faults);

} // namespace kivgen
