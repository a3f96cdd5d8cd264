#include "generator/model/TomlReader.h"

#include "generator/Naming.h"
#include "generator/model/TomlText.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>
#include <tuple>

// toml++ is used without its compiled half, because that one fixes the depth of nesting at 256.
// Definitions are at most three deep. Together with the longest line this bounds the depth of what
// comes out, which toml++ itself does not do for dotted keys: it would run out of stack on a long
// enough one.
#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#define TOML_MAX_NESTED_VALUES 8
// Its assertions are wrong: some fail on input that the code behind them reports as an error, such
// as "[!". Checked they would end the generator, and with NDEBUG they turn into promises to the
// compiler that do not hold.
#undef NDEBUG
#define TOML_ASSERT(expression) static_cast<void>(0)
#include <toml++/toml.h>

namespace kivgen {
namespace {

constexpr std::size_t largestFile = std::size_t{4} << 20U;
constexpr int mostSyntaxFaults = 10; // of one file

std::optional<std::string> readText(std::filesystem::path const& path, std::string const& name,
                                    Faults& faults)
{
    std::error_code error;
    auto const size = std::filesystem::file_size(path, error);
    if (!error && size > largestFile) {
        faults.push_back({{name}, "is larger than 4 MiB; a definition takes a few lines"});
        return std::nullopt;
    }
    std::ifstream file{path, std::ios::binary};
    if (error || !file) {
        auto const reason = error ? error : std::error_code{errno, std::generic_category()};
        faults.push_back({{name}, "cannot be read: " + reason.message()});
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(size), '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (file.gcount() != static_cast<std::streamsize>(text.size())) {
        faults.push_back({{name}, "cannot be read to its end"});
        return std::nullopt;
    }
    return text;
}

SourcePosition placeOf(std::string const& name, toml::source_position position)
{
    return {name, position.line, position.column};
}

/// The parser notices a key that is there already behind it, at the equals sign or the value. The
/// key itself begins its line, unless it stands in an inline table: then nothing is given.
std::optional<std::size_t> columnOfKey(std::string_view line, SourcePosition const& noticed)
{
    auto const before = line.substr(0, noticed.column);
    auto const first = before.find_first_not_of(" \t");
    bool const isInline = before.find('{') != std::string_view::npos;
    return isInline || first == std::string_view::npos ? std::nullopt : std::optional(first + 1);
}

bool isLetter(char each)
{
    return (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z');
}

bool isOfWords(char each)
{
    return isLetter(each) || (each >= '0' && each <= '9') || each == '_' || each == ':' ||
           each == ' ';
}

/// The words that stand behind the equals sign where a text in quotes is meant, or nothing.
std::string_view bareWords(std::string_view line)
{
    line = line.substr(0, line.find('#'));
    auto const equals = line.find('=');
    auto const begin =
        line.find_first_not_of(" \t", equals == std::string_view::npos ? 0 : equals + 1);
    auto const end = line.find_last_not_of(" \t\r") + 1;
    if (equals == std::string_view::npos || begin >= end || !isLetter(line[begin])) {
        return {};
    }
    auto const words = line.substr(begin, end - begin);
    return std::ranges::all_of(words, isOfWords) ? words : std::string_view{};
}

/// The last place of a key that no inline table holds, or nothing.
std::optional<toml::source_position> lastPlaceOf(std::string_view key, toml::table const& table)
{
    std::optional<toml::source_position> last;
    auto const note = [&](std::optional<toml::source_position> const& place) {
        last = place && (!last || *last < *place) ? place : last;
    };
    for (auto const& [each, value] : table) {
        if (each.str() == key) {
            note(each.source().begin);
        }
        auto const* const below = value.as_table();
        if (below != nullptr && !below->is_inline()) {
            note(lastPlaceOf(key, *below));
        }
    }
    return last;
}

/// Where a key stood first that begins this line, if that is known.
std::vector<Mention> firstPlaceOf(std::string_view key, TomlText const& text,
                                  SourcePosition const& again)
{
    auto const result = toml::parse(text.above(again.line));
    auto const place = result ? lastPlaceOf(key, result.table()) : std::nullopt;
    if (!place) {
        return {};
    }
    return {{placeOf(again.file, *place), "it stands here first"}};
}

Fault faultOf(toml::parse_error const& error, TomlText const& text, std::string const& name)
{
    auto place = placeOf(name, error.source().begin);
    auto const line = text.line(place.line);
    std::string_view const description = error.description();
    if (description.find("TOML_MAX_NESTED_VALUES") != std::string_view::npos) {
        return {place, "tables and arrays are nested deeper than any definition needs"};
    }
    if (description.find("unescaped control characters") != std::string_view::npos) {
        return {place, "is not TOML: the string is not closed on its line"}; // a line break
    }
    if (auto const words = bareWords(line); !words.empty()) {
        place.column = static_cast<std::size_t>(words.data() - line.data()) + 1;
        return {place, "a text stands in quotes: \"" + std::string(words) + '"'};
    }
    if (description.find("cannot redefine") == std::string_view::npos) {
        return {place, "is not TOML: " + printable(lowered(description))};
    }
    auto const column = columnOfKey(line, place);
    place.column = column.value_or(place.column);
    auto const open = description.find('\'') + 1;
    auto const key = description.substr(open, description.rfind('\'') - open);
    return {place, "the key " + inQuotes(key) + " stands here a second time; keep one of the two",
            column ? firstPlaceOf(key, text, place) : std::vector<Mention>{}};
}

/// Whether the fault lies in that line. If not it lies above, in what the line is taken for a part
/// of.
bool isFaultyAlone(std::string_view line, toml::parse_error const& error)
{
    bool const isRepeated = error.description().find("cannot redefine") != std::string_view::npos;
    return isRepeated || !toml::parse(line);
}

std::string_view nameOf(toml::node_type type)
{
    switch (type) {
    case toml::node_type::table:
        return "a table";
    case toml::node_type::array:
        return "an array";
    case toml::node_type::string:
        return "a string";
    case toml::node_type::integer:
        return "an integer";
    case toml::node_type::floating_point:
        return "a floating-point number";
    case toml::node_type::boolean:
        return "a boolean";
    default:
        return "a date or time";
    }
}

Node nodeOf(toml::node const& source, std::string const& name)
{
    Node node;
    node.typeName = nameOf(source.type());
    node.place = placeOf(name, source.source().begin);
    if (auto const* const text = source.as_string()) {
        node.type = Node::Type::Text;
        node.text = text->get();
    } else if (auto const* const list = source.as_array()) {
        node.type = Node::Type::List;
        for (auto const& entry : *list) {
            node.list.push_back(nodeOf(entry, name));
        }
    } else if (auto const* const table = source.as_table()) {
        node.type = Node::Type::Table;
        for (auto const& [key, value] : *table) {
            auto const place = placeOf(name, key.source().begin);
            node.table.push_back({std::string{key.str()}, place, nodeOf(value, name)});
        }
        // toml++ keeps tables sorted by key; here the order of the file counts.
        std::sort(node.table.begin(), node.table.end(), [](Entry const& one, Entry const& other) {
            return std::tie(one.place.line, one.place.column) <
                   std::tie(other.place.line, other.place.column);
        });
    }
    return node;
}

} // namespace

std::optional<Node> readToml(std::filesystem::path const& path, std::string const& name,
                             Faults& faults)
{
    auto bytes = readText(path, name, faults);
    if (!bytes) {
        return std::nullopt;
    }
    TomlText text{std::move(*bytes), name};
    text.leaveOutUnreadable(faults);
    for (int count = 0; count < mostSyntaxFaults; ++count) {
        auto const result = toml::parse(text.text());
        if (result) {
            Node node = nodeOf(result.table(), name);
            node.isWhole = text.isWhole();
            return node;
        }
        faults.push_back(faultOf(result.error(), text, name));
        auto const number = faults.back().place.line;
        if (!isFaultyAlone(text.line(number), result.error()) || !text.leaveOut(number)) {
            break;
        }
    }
    return std::nullopt;
}

} // namespace kivgen
