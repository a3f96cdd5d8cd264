#include "generator/model/Spelling.h"

#include "generator/Naming.h"

#include <algorithm>
#include <array>

namespace kivgen {
namespace {

bool isLower(char letter)
{
    return letter >= 'a' && letter <= 'z';
}

bool isUpper(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

bool isLetterOrDigit(char letter)
{
    return isLower(letter) || isUpper(letter) || isDigit(letter);
}

} // namespace

bool hasServiceForm(std::string_view word)
{
    return !word.empty() && isLower(word.front()) &&
           std::ranges::all_of(word, [](char one) { return isLower(one) || isDigit(one); });
}

bool hasClassForm(std::string_view word)
{
    return !word.empty() && isUpper(word.front()) && std::ranges::all_of(word, isLetterOrDigit);
}

bool hasKeyForm(std::string_view word)
{
    return !word.empty() && !isDigit(word.front()) && std::ranges::all_of(word, isLetterOrDigit);
}

bool isReservedService(std::string_view word)
{
    constexpr std::array<std::string_view, 15> reserved{
        // namespaces that qualified names in the code begin with
        "std", "zel", "kiv", "common", "dataformats", "data", "types", "internal", "catalogue",
        // macros of compilers and of the C library
        "errno", "linux", "stderr", "stdin", "stdout", "unix"};
    return isCppKeyword(word) || std::ranges::find(reserved, word) != reserved.end();
}

bool isReservedClass(std::string_view word)
{
    // The endings make what reads a class and the catalogue's makers; without a small letter it may
    // be a macro, such as EOF.
    if (word.ends_with("Deserializer") || word.ends_with("Element") ||
        std::ranges::none_of(word, isLower)) {
        return true;
    }
    constexpr std::array<std::string_view, 18> reserved{
        // the frame
        "ElementStatus", "ExternalResourceObject", "IObjectBase", "IResourceBase",
        "SerializationType",
        // what source units call their own class
        "Resource",
        // the value classes
        "Array", "Boolean", "BufferDescriptor", "ConstVisitor", "Float", "Integer", "Object",
        "PtrMap", "PtrVector", "Ref", "String", "Value"};
    return std::ranges::find(reserved, word) != reserved.end();
}

} // namespace kivgen
