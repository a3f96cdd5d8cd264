#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace zel::kiv::catalogue {

/// The eleven kinds of field. A kind fixes how a field is stored, which accessors it has and what
/// its value form is.
enum class Kind {
    String,
    Int,
    Double,
    Bool,
    StringList,
    IntList,
    Element,
    ElementList,
    External,
    ExternalList,
    Polymorphic,
};

/// The kinds' words, in the order of `Kind`, as definitions and messages spell them.
inline constexpr std::array<std::string_view, 11> kindWords{
    "string",  "int",          "double",   "bool",          "string list", "int list",
    "element", "element list", "external", "external list", "polymorphic",
};

/// The word of a kind.
constexpr std::string_view wordOf(Kind kind)
{
    return kindWords.at(static_cast<std::size_t>(kind));
}

/// The kind that has this word, or nothing.
constexpr std::optional<Kind> kindOf(std::string_view word)
{
    auto const* const found = std::find(kindWords.begin(), kindWords.end(), word);
    if (found == kindWords.end()) {
        return std::nullopt;
    }
    return static_cast<Kind>(found - kindWords.begin());
}

/// Whether the value form of the kind is an array.
constexpr bool isList(Kind kind)
{
    return kind == Kind::StringList || kind == Kind::IntList || kind == Kind::ElementList ||
           kind == Kind::ExternalList;
}

/// Whether a field of this kind, or an entry of it, is an element.
constexpr bool isNested(Kind kind)
{
    return kind >= Kind::Element;
}

} // namespace zel::kiv::catalogue
