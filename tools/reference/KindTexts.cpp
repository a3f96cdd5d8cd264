#include "tools/reference/KindTexts.h"

namespace reference {

using zel::kiv::catalogue::Kind;

namespace {

constexpr std::string_view copied = "copied in and out";
constexpr std::string_view oneOwned =
    "owned, the getter lends it; one that is replaced is nobody's";
constexpr std::string_view manyOwned = "owned; the getter copies the list of pointers";
constexpr std::string_view oneWritten = "an Object; shallow and below: a String holding its uri";

} // namespace

KindTexts textsOf(zel::kiv::catalogue::Kind kind)
{
    using zel::kiv::catalogue::Kind;
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
        return {copied, "an Array of String"};
    case Kind::IntList:
        return {copied, "an Array of Integer"};
    case Kind::Element:
    case Kind::External:
    case Kind::Polymorphic:
        return {oneOwned, oneWritten};
    case Kind::ElementList:
        return {manyOwned, "an Array of such values as element"};
    case Kind::ExternalList:
        return {manyOwned, "an Array of such values as external"};
    }
    return {};
}

} // namespace reference
