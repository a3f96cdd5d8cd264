#include "generator/pages/Signatures.h"

#include <algorithm>
#include <utility>

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

/// One line if it is short enough at the column, else what it is broken into.
Block oneOr(std::string line, std::string broken)
{
    return Block::of([line = std::move(line), broken = std::move(broken)](std::size_t column) {
        return Block(column + line.size() <= columns ? line : broken).at(column);
    });
}

/// A getter whose result is a single word, which nothing is broken behind.
Block brokenGetter(std::string const& result, std::string const& scope, std::string const& call,
                   std::string const& tail)
{
    std::string const start = spaced(result) + scope + call;
    std::string const end = "const" + tail;
    std::string const behindScope = spaced(result) + scope + "\n    " + call + ' ' + end;
    return Block::of([=](std::size_t column) {
        bool const fits = column + start.size() <= columns;
        return oneOr(start + ' ' + end, fits ? start + "\n    " + end : behindScope).at(column);
    });
}

/// A signature that is too long is broken behind the result, or, in a definition or where that does
/// not help, before the parameter.
Block brokenSignature(std::string const& result, Accessor const& accessor, std::string const& scope,
                      std::string const& tail)
{
    std::string const name = scope + accessor.name;
    if (accessor.parameter.empty()) {
        bool const isWord = result.find_first_of(":*[") == std::string::npos;
        return isWord ? brokenGetter(result, scope, accessor.name + "()", tail)
                      : withResult(result, name + "() const" + tail);
    }
    std::string const start = name + '(' + accessor.parameter;
    std::string const end = "value)" + tail;
    std::string const line = spaced(result) + start + ' ' + end;
    std::string const opened = spaced(result) + name + "(\n    " + accessor.parameter;
    bool const isDeclaration = scope.empty();
    return Block::of([=, parameter = accessor.parameter.size()](std::size_t column) {
        auto const fits = [column](std::size_t size) { return column + size <= columns; };
        std::string broken = opened + "\n        " + end;
        if (fits(line.size())) {
            broken = line;
        } else if (isDeclaration && fits(start.size() + 1 + end.size())) {
            broken = result + '\n' + start + ' ' + end;
        } else if (fits(4 + parameter + 1 + end.size())) {
            broken = opened + ' ' + end;
        } else if (isDeclaration && fits(start.size())) {
            broken = result + '\n' + start + '\n' + std::string(name.size() + 5, ' ') + end;
        }
        return Block(broken).at(column);
    });
}

} // namespace

Block withResult(std::string const& result, std::string const& rest)
{
    return oneOr(spaced(result) + rest, result + '\n' + rest);
}

Block constructorOf(std::string const& name, std::string const& base, std::string const& key)
{
    std::string const initialiser = ": " + base + "(\"" + key + "\")";
    std::string const line = name + ' ' + initialiser;
    std::string const broken = name + "\n    " + initialiser;
    return Block::of([=](std::size_t column) {
        return oneOr(line + " {}", (column + line.size() <= columns ? line : broken) + "\n{\n}")
            .at(column);
    });
}

Block classHeadOf(std::string const& name, std::string const& base)
{
    std::string const head = "class ZEL_KIV_API " + name;
    return oneOr(head + " : public " + base + " {", head + "\n    : public " + base + " {");
}

Block memberLine(std::string const& member)
{
    auto const value = member.find(" = ");
    auto const name = member.find(" m_");
    std::string const behindName =
        member.substr(0, value + 2) + "\n    " + member.substr(std::min(value + 3, member.size()));
    std::string const behindType = member.substr(0, name) + "\n    " + member.substr(name + 1);
    return Block::of([=](std::size_t column) {
        bool const fits = value != std::string::npos && column + value + 2 <= columns;
        return oneOr(member, fits ? behindName : behindType).at(column);
    });
}

std::string signatureOf(Accessor const& accessor)
{
    return spaced(accessor.result) + accessor.name + parametersOf(accessor);
}

Block declarationOf(Accessor const& accessor)
{
    std::string const result =
        accessor.parameter.empty() ? "[[nodiscard]] " + accessor.result : accessor.result;
    return brokenSignature(result, accessor, "", ";");
}

Block definitionOf(Accessor const& accessor, std::string const& scope)
{
    return fill(R"(

$signature$
{
    $body$
}
)",
                {{"signature", brokenSignature(accessor.result, accessor, scope + "::", "")},
                 {"body", accessor.body}});
}

} // namespace kivgen
