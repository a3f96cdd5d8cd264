#include "generator/pages/Signatures.h"

#include "generator/Printer.h"

namespace kivgen {

namespace {

std::string spaced(std::string const& type)
{
    return type + ' ';
}

std::string parametersOf(Accessor const& accessor)
{
    return accessor.parameter.empty() ? "() const" : '(' + spaced(accessor.parameter) + "value)";
}

/// The signature from some indentation on. One that is too long is broken behind the result, or, in
/// a definition or where that does not help, before the parameter.
std::string brokenSignature(std::size_t indent, std::string const& result, Accessor const& accessor,
                            std::string const& scope, std::string const& tail)
{
    std::string const name = scope + accessor.name;
    if (accessor.parameter.empty()) {
        return withResult(indent, result, name + "() const" + tail);
    }
    std::string const start = name + '(' + accessor.parameter;
    std::string const end = "value)" + tail;
    std::string const line = spaced(result) + start + ' ' + end;
    if (indent + line.size() <= columns) {
        return std::string(indent, ' ') + line + '\n';
    }
    if (scope.empty() && indent + start.size() + 1 + end.size() <= columns) {
        return withResult(indent, result, start + ' ' + end);
    }
    std::string const left(indent, ' ');
    std::string const opened = left + spaced(result) + name + "(\n    " + left + accessor.parameter;
    if (indent + 4 + accessor.parameter.size() + 1 + end.size() <= columns) {
        return opened + ' ' + end + '\n';
    }
    if (scope.empty() && indent + start.size() <= columns) {
        return left + result + '\n' + left + start + '\n' +
               std::string(indent + name.size() + 5, ' ') + end + '\n';
    }
    return opened + "\n        " + left + end + '\n';
}

} // namespace

std::string withResult(std::size_t indent, std::string const& result, std::string const& rest)
{
    std::string const start = std::string(indent, ' ') + result;
    bool const fits = start.size() + 1 + rest.size() <= columns;
    return start + (fits ? " " : '\n' + std::string(indent, ' ')) + rest + '\n';
}

std::string constructorOf(std::string const& name, std::string const& base, std::string const& key)
{
    std::string const initialiser = ": " + base + "(\"" + key + "\")";
    std::string const line = name + ' ' + initialiser + " {}";
    if (line.size() <= columns) {
        return line + '\n';
    }
    return name + "\n    " + initialiser + "\n{\n}\n";
}

std::string visitorConstructorOf(std::string const& className, std::string const& target)
{
    std::string const head = "    explicit " + className + "Deserializer(" + target + "& target)";
    std::string const initialiser = ": " + target + "Visitor(target)";
    std::string const line = head + ' ' + initialiser;
    if (line.size() <= columns) {
        return line + (line.size() + 3 <= columns ? " {}\n" : "\n    {\n    }\n");
    }
    return head + "\n        " + initialiser + "\n    {\n    }\n";
}

std::string classHeadOf(std::string const& name, std::string const& base)
{
    std::string const head = "class ZEL_KIV_API " + name;
    std::string const line = head + " : public " + base + " {\n";
    return line.size() <= columns + 1 ? line : head + "\n    : public " + base + " {\n";
}

std::string memberLine(std::string const& member)
{
    std::string line = indented(member, 4);
    if (line.size() <= columns + 1) {
        return line;
    }
    auto const value = member.find(" = ");
    if (value != std::string::npos && 4 + value + 2 <= columns) {
        return "    " + member.substr(0, value + 2) + "\n        " + member.substr(value + 3) +
               '\n';
    }
    auto const name = member.find(" m_");
    return "    " + member.substr(0, name) + "\n        " + member.substr(name + 1) + '\n';
}

std::string signatureOf(Accessor const& accessor)
{
    return spaced(accessor.result) + accessor.name + parametersOf(accessor);
}

std::string declarationOf(Accessor const& accessor)
{
    std::string const result =
        accessor.parameter.empty() ? "[[nodiscard]] " + accessor.result : accessor.result;
    return comment(accessor.about, 4) + brokenSignature(4, result, accessor, "", ";");
}

std::string definitionOf(Accessor const& accessor, std::string const& scope)
{
    return brokenSignature(0, accessor.result, accessor, scope + "::", "") + "{\n" +
           indented(accessor.body, 4) + "}\n";
}

} // namespace kivgen
