#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace zel::kiv::catalogue {

/// The kinds of field. A kind fixes how a field is stored, which accessors it has and what its
/// value form is.
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

/// What an accessor of a field is for.
enum class Purpose { Get, Set, Add, Presence };

/// What a field, or an entry of a list, is as a value. An object may be given as a uri too.
enum class Content { String, Integer, Float, Boolean, Object };

/// What makes a kind what it is. In the C++ types `T` stands for the class of the target.
struct KindTraits {
    std::string_view word;  ///< as definitions and messages spell it: `string list`
    std::string_view table; ///< if definitions name its targets, the key they do it by: `element`
    Kind entry = {};        ///< the kind of one entry of a list; of any other kind, the kind itself
    Content content = {};
    std::string_view stored;    ///< the member: `std::vector<std::string>`
    std::string_view result;    ///< what the getter gives: `std::string const&`
    std::string_view parameter; ///< what the setter or adder takes: `std::unique_ptr<T>`
    std::string_view initial;   ///< the member's initial value, if that is to be written
    std::string_view unset;     ///< what the getter gives while the field is not set: `zero`
    std::string_view wanted;    ///< what a value must be to be read as it stands: `an integer`
};

/// The table of kinds: all that is to be said of a kind apart from what the generator and the frame
/// make of it. A kind without a row does not compile.
constexpr KindTraits traitsOf(Kind kind)
{
    switch (kind) {
    case Kind::String:
        return {.word = "string",
                .table = "",
                .entry = Kind::String,
                .content = Content::String,
                .stored = "std::string",
                .result = "std::string const&",
                .parameter = "std::string const&",
                .initial = "",
                .unset = "empty",
                .wanted = "text"};
    case Kind::Int:
        return {.word = "int",
                .table = "",
                .entry = Kind::Int,
                .content = Content::Integer,
                .stored = "int",
                .result = "int",
                .parameter = "int",
                .initial = "0",
                .unset = "zero",
                .wanted = "an integer"};
    case Kind::Double:
        return {.word = "double",
                .table = "",
                .entry = Kind::Double,
                .content = Content::Float,
                .stored = "double",
                .result = "double",
                .parameter = "double",
                .initial = "0.0",
                .unset = "zero",
                .wanted = "a number"};
    case Kind::Bool:
        return {.word = "bool",
                .table = "",
                .entry = Kind::Bool,
                .content = Content::Boolean,
                .stored = "bool",
                .result = "bool",
                .parameter = "bool",
                .initial = "false",
                .unset = "false",
                .wanted = "true or false"};
    case Kind::StringList:
        return {.word = "string list",
                .table = "",
                .entry = Kind::String,
                .content = Content::String,
                .stored = "std::vector<std::string>",
                .result = "std::vector<std::string>",
                .parameter = "std::string const&",
                .initial = "",
                .unset = "empty",
                .wanted = "an array"};
    case Kind::IntList:
        return {.word = "int list",
                .table = "",
                .entry = Kind::Int,
                .content = Content::Integer,
                .stored = "std::vector<int>",
                .result = "std::vector<int>",
                .parameter = "int",
                .initial = "",
                .unset = "empty",
                .wanted = "an array"};
    case Kind::Element:
        return {.word = "element",
                .table = "element",
                .entry = Kind::Element,
                .content = Content::Object,
                .stored = "T*",
                .result = "T*",
                .parameter = "std::unique_ptr<T>",
                .initial = "nullptr",
                .unset = "null",
                .wanted = "an object or a uri"};
    case Kind::ElementList:
        return {.word = "element list",
                .table = "element_list",
                .entry = Kind::Element,
                .content = Content::Object,
                .stored = "std::vector<T*>",
                .result = "std::vector<T*>",
                .parameter = "std::unique_ptr<T>",
                .initial = "",
                .unset = "empty",
                .wanted = "an array"};
    case Kind::External:
        return {.word = "external",
                .table = "",
                .entry = Kind::External,
                .content = Content::Object,
                .stored = "T*",
                .result = "T*",
                .parameter = "std::unique_ptr<T>",
                .initial = "nullptr",
                .unset = "null",
                .wanted = "an object or a uri"};
    case Kind::ExternalList:
        return {.word = "external list",
                .table = "",
                .entry = Kind::External,
                .content = Content::Object,
                .stored = "std::vector<T*>",
                .result = "std::vector<T*>",
                .parameter = "std::unique_ptr<T>",
                .initial = "",
                .unset = "empty",
                .wanted = "an array"};
    case Kind::Polymorphic:
        return {.word = "polymorphic",
                .table = "polymorphic",
                .entry = Kind::Polymorphic,
                .content = Content::Object,
                .stored = "IObjectBase*",
                .result = "IObjectBase*",
                .parameter = "std::unique_ptr<T>",
                .initial = "nullptr",
                .unset = "null",
                .wanted = "an object or a uri"};
    }
    return {}; // behind the last kind
}

/// The word of a kind.
constexpr std::string_view wordOf(Kind kind)
{
    return traitsOf(kind).word;
}

/// Whether the value form of the kind is an array.
constexpr bool isList(Kind kind)
{
    return traitsOf(kind).entry != kind;
}

/// Whether a field of this kind, or an entry of it, is an element.
constexpr bool isNested(Kind kind)
{
    return traitsOf(kind).content == Content::Object;
}

/// How many kinds there are: as many as have rows.
inline constexpr std::size_t kindCount = [] {
    std::size_t count = 0;
    while (!wordOf(static_cast<Kind>(count)).empty()) {
        ++count;
    }
    return count;
}();

/// All kinds, in the order of `Kind`.
inline constexpr std::array<Kind, kindCount> kinds = [] {
    std::array<Kind, kindCount> all{};
    for (std::size_t i = 0; i < kindCount; ++i) {
        all.at(i) = static_cast<Kind>(i);
    }
    return all;
}();

/// The kinds' words, in that order.
inline constexpr std::array<std::string_view, kindCount> kindWords = [] {
    std::array<std::string_view, kindCount> words{};
    std::ranges::transform(kinds, words.begin(), wordOf);
    return words;
}();

/// The kind that has this word, or nothing.
constexpr std::optional<Kind> kindOf(std::string_view word)
{
    auto const* const found = std::ranges::find(kindWords, word);
    if (found == kindWords.end()) {
        return std::nullopt;
    }
    return kinds.at(static_cast<std::size_t>(found - kindWords.begin()));
}

} // namespace zel::kiv::catalogue
