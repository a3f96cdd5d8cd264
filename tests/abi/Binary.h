#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// What can be read off a built file. The work is done by readelf, which reads files of any
/// machine.
namespace binary {

struct Symbol {
    std::string name; ///< as the linker sees it
    std::size_t size;
};

/// What the file offers to those that link against it.
std::vector<Symbol> exportsOf(std::string const& file);

/// The lines that readelf prints, with `options` as on its command line.
std::vector<std::string> readelf(std::string const& options, std::string const& file);

/// How many lines hold that text.
std::size_t countOf(std::string const& text, std::vector<std::string> const& lines);

/// The operations of a visitor as people write them, in the order of their slots.
inline constexpr char const* visitOperations[] = {
    "visitNull()",
    "visitBoolean(bool)",
    "visitInteger(int)",
    "visitFloat(double)",
    "visitString(zel::common::types::BufferDescriptor<char const>)",
    "visitBlob(zel::common::types::BufferDescriptor<char const>)",
    "visitArray(zel::common::types::PtrVector<zel::dataformats::data::Value> const&)",
    "visitObject(zel::common::types::PtrMap<std::string, zel::dataformats::data::Value> const&)"};

/// A symbol as people write it: without the root namespace, default template arguments and tags.
/// Constructors and destructors end in their variant, `radio::Presets::~Presets() [D0]`.
std::string readable(std::string const& symbol);

} // namespace binary
