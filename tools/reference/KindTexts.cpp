#include "tools/reference/KindTexts.h"

#include <algorithm>
#include <array>

namespace reference {

namespace {

constexpr std::string_view oneOwned = "owned; the getter lends the pointer";
constexpr std::string_view manyOwned = "owned; the getter copies the list of pointers";
constexpr std::string_view oneWritten = "an Object; shallow and below: a String holding its uri";

/// In the order of `Kind`.
constexpr std::array<KindTexts, zel::kiv::catalogue::kindWords.size()> words{{
    {"std::string", "copied in; the getter lends a reference", "a String"},
    {"int", "by value", "an Integer"},
    {"double", "by value", "a Float"},
    {"bool", "by value", "a Boolean"},
    {"std::vector<std::string>", "copied in and out", "an Array of String"},
    {"std::vector<int>", "copied in and out", "an Array of Integer"},
    {"T*", oneOwned, oneWritten},
    {"std::vector<T*>", manyOwned, "an Array of such values as element"},
    {"ExternalResourceObject*", oneOwned, oneWritten},
    {"std::vector<ExternalResourceObject*>", manyOwned, "an Array of such values as external"},
    {"IObjectBase*, and a flag for each target", oneOwned, oneWritten},
}};

} // namespace

KindTexts const& textsOf(zel::kiv::catalogue::Kind kind)
{
    return words.at(static_cast<std::size_t>(kind));
}

std::string anchorOf(zel::kiv::catalogue::Kind kind)
{
    std::string word(wordOf(kind));
    std::ranges::replace(word, ' ', '-');
    return "kinds/" + word;
}

} // namespace reference
