#include "tools/reference/KindTexts.h"

#include <algorithm>
#include <stdexcept>

namespace reference {

using zel::kiv::catalogue::Kind;

namespace {

constexpr std::string_view oneOwned = "owned; the getter lends the pointer";
constexpr std::string_view manyOwned = "owned; the getter copies the list of pointers";
constexpr std::string_view oneWritten = "an Object; shallow and below: a String holding its uri";

} // namespace

KindTexts textsOf(Kind kind)
{
    switch (kind) {
    case Kind::String:
        return {"copied in; the getter lends a reference", "a String"};
    case Kind::Int:
        return {"by value", "an Integer"};
    case Kind::Double:
        return {"by value", "a Float"};
    case Kind::Bool:
        return {"by value", "a Boolean"};
    case Kind::StringList:
        return {"copied in and out", "an Array of String"};
    case Kind::IntList:
        return {"copied in and out", "an Array of Integer"};
    case Kind::Element:
    case Kind::External:
        return {oneOwned, oneWritten};
    case Kind::ElementList:
        return {manyOwned, "an Array of such values as element"};
    case Kind::ExternalList:
        return {manyOwned, "an Array of such values as external"};
    case Kind::Polymorphic:
        return {"owned; the getter lends the pointer, and a flag for each target tells its class",
                oneWritten};
    }
    throw std::logic_error("a kind without words");
}

std::string anchorOf(Kind kind)
{
    std::string word(wordOf(kind));
    std::ranges::replace(word, ' ', '-');
    return "kinds/" + word;
}

} // namespace reference
