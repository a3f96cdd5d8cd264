#include "generator/Naming.h"

#include <algorithm>
#include <array>

namespace kivgen {
namespace {

/// Sorted, so that it can be searched.
constexpr std::array<std::string_view, 92> keywords{
    "alignas",       "alignof",     "and",
    "and_eq",        "asm",         "auto",
    "bitand",        "bitor",       "bool",
    "break",         "case",        "catch",
    "char",          "char16_t",    "char32_t",
    "char8_t",       "class",       "co_await",
    "co_return",     "co_yield",    "compl",
    "concept",       "const",       "const_cast",
    "consteval",     "constexpr",   "constinit",
    "continue",      "decltype",    "default",
    "delete",        "do",          "double",
    "dynamic_cast",  "else",        "enum",
    "explicit",      "export",      "extern",
    "false",         "float",       "for",
    "friend",        "goto",        "if",
    "inline",        "int",         "long",
    "mutable",       "namespace",   "new",
    "noexcept",      "not",         "not_eq",
    "nullptr",       "operator",    "or",
    "or_eq",         "private",     "protected",
    "public",        "register",    "reinterpret_cast",
    "requires",      "return",      "short",
    "signed",        "sizeof",      "static",
    "static_assert", "static_cast", "struct",
    "switch",        "template",    "this",
    "thread_local",  "throw",       "true",
    "try",           "typedef",     "typeid",
    "typename",      "union",       "unsigned",
    "using",         "virtual",     "void",
    "volatile",      "wchar_t",     "while",
    "xor",           "xor_eq",
};
static_assert(std::is_sorted(keywords.begin(), keywords.end()));

// ASCII alone: the locale must not change what is generated.
char raisedLetter(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

char loweredLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

std::string stemOf(std::string_view key)
{
    std::string stem{key};
    if (!stem.empty()) {
        stem.front() = raisedLetter(stem.front());
    }
    return stem;
}

std::string lowered(std::string_view name)
{
    std::string key{name};
    if (!key.empty()) {
        key.front() = loweredLetter(key.front());
    }
    return key;
}

bool isCppKeyword(std::string_view word)
{
    return std::binary_search(keywords.begin(), keywords.end(), word);
}

std::string getterName(std::string_view key)
{
    return "get" + stemOf(key);
}

std::string setterName(std::string_view key)
{
    return "set" + stemOf(key);
}

std::string adderName(std::string_view key)
{
    return "add" + stemOf(key);
}

std::string presenceName(std::string_view key)
{
    return "is" + stemOf(key) + "Set";
}

std::string presenceName(std::string_view key, Resource const& target)
{
    return "is" + stemOf(target.service) + target.name + target.element + stemOf(key) + "Set";
}

std::string headerOf(Resource const& resource)
{
    if (resource.isExternal()) {
        return "frame/ExternalResourceObject.h";
    }
    return "services/" + resource.service + '/' + resource.name + ".h";
}

std::string resourceClassOf(Resource const& resource)
{
    return resource.isExternal() ? "" : resource.service + "::" + resource.name;
}

std::string elementClassOf(Resource const& resource)
{
    std::string const outer = resourceClassOf(resource);
    return outer.empty() ? resource.element : outer + "::" + resource.element;
}

std::string enumeratorOf(Kind kind)
{
    std::string name;
    char before = ' ';
    for (char const each : zel::kiv::catalogue::wordOf(kind)) {
        if (each != ' ') {
            name += before == ' ' ? raisedLetter(each) : each;
        }
        before = each;
    }
    return name;
}

std::vector<std::string> accessorNames(Field const& field, Interface const& interface)
{
    auto const takesEntries = zel::kiv::catalogue::isList(field.kind);
    std::vector<std::string> names{getterName(field.key),
                                   takesEntries ? adderName(field.key) : setterName(field.key)};
    if (field.kind != Kind::Polymorphic) {
        names.push_back(presenceName(field.key));
        return names;
    }
    for (Target const& target : field.targets) {
        if (auto const* const resource = interface.find(target)) {
            names.push_back(presenceName(field.key, *resource));
        }
    }
    return names;
}

} // namespace kivgen
