#include "tools/reference/FrameApi.h"

#include "catalogue/Catalogue.h"
#include "tools/reference/Html.h"

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace reference {

namespace {

namespace fs = std::filesystem;
using zel::kiv::catalogue::rootNamespace;

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto place = text.find(from); place != std::string::npos;
         place = text.find(from, place + to.size())) {
        text.replace(place, from.size(), to);
    }
}

/// A piece of a declaration as the headers write it. Doxygen sets its blanks in another way, and
/// the namespace of the values says nothing to the reader.
std::string declared(std::string text)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 10> changes{{
        {"< ", "<"},
        {" >", ">"},
        {" *&", "*& "},
        {" *", "* "},
        {" &", "& "},
        {" =0", ""},
        {"=0", ""},
        {" override", ""},
        {"zel::dataformats::data::", ""},
        {"zel::common::types::", ""},
    }};
    for (auto const& [from, to] : changes) {
        replaceAll(text, from, to);
    }
    return text;
}

/// All text in a node.
std::string textOf(pugi::xml_node node)
{
    std::string text = node.value();
    for (pugi::xml_node const child : node.children()) {
        text += textOf(child);
    }
    return text;
}

std::string htmlOf(pugi::xml_node node)
{
    if (node.type() == pugi::node_pcdata) {
        return escaped(node.value());
    }
    if (std::string_view(node.name()) == "computeroutput") {
        return "<code>" + escaped(textOf(node)) + "</code>";
    }
    std::string html;
    for (pugi::xml_node const child : node.children()) {
        html += htmlOf(child);
    }
    if (std::string_view(node.name()) != "para") {
        return html;
    }
    html.erase(html.find_last_not_of(' ') + 1);
    return "<p>" + html + "</p>\n";
}

std::string aboutOf(pugi::xml_node documented)
{
    std::string html = htmlOf(documented.child("briefdescription")) +
                       htmlOf(documented.child("detaileddescription"));
    return html.find_first_not_of('\n') == std::string::npos ? std::string{} : html;
}

Operation operationOf(pugi::xml_node member)
{
    std::string const type = declared(textOf(member.child("type")));
    std::string const start =
        std::string(member.attribute("static").value()) == "yes" ? "static " + type : type;
    bool const isTight = start.ends_with(' ');
    return {member.child_value("name"), start + (isTight ? "" : " "),
            declared(member.child_value("argsstring")), aboutOf(member)};
}

/// Whether the class says something of its own about the operation, be it not a constructor.
bool isToldOf(pugi::xml_node member)
{
    bool const isPublic = std::string_view(member.attribute("prot").value()) == "public";
    bool const isConstructor = member.child("type").first_child().empty();
    return isPublic && !isConstructor && !member.child("reimplements") && !aboutOf(member).empty();
}

pugi::xml_document load(fs::path const& file)
{
    pugi::xml_document document;
    auto const result = document.load_file(file.c_str());
    if (!result) {
        throw std::runtime_error(file.string() + ": " + result.description());
    }
    return document;
}

/// The file in which Doxygen describes that class or namespace.
fs::path fileOf(fs::path const& folder, std::string_view kind, std::string_view name)
{
    std::string file(name);
    replaceAll(file, "::", "_1_1");
    return folder / (std::string(kind) + file + ".xml");
}

/// The last two parts of the path: a header as clients include it.
std::string headerOf(pugi::xml_node documented)
{
    fs::path const file = documented.child("location").attribute("file").value();
    fs::path const folder = file.parent_path();
    bool const isService = folder.parent_path().filename() == "services";
    return (isService ? "services/" : "") + (folder.filename() / file.filename()).string();
}

Type enumerationOf(pugi::xml_node member)
{
    Type type{member.child_value("name"), headerOf(member), aboutOf(member), {}, {}};
    for (pugi::xml_node const value : member.children("enumvalue")) {
        std::string number = value.child_value("initializer");
        number.erase(0, number.find_first_not_of("= "));
        type.values.push_back({value.child_value("name"), number, aboutOf(value)});
    }
    return type;
}

Type classOf(fs::path const& file, std::string_view name)
{
    pugi::xml_document const document = load(file);
    pugi::xml_node const compound = document.document_element().child("compounddef");
    Type type{std::string(name), headerOf(compound), aboutOf(compound), {}, {}};
    for (pugi::xml_node const section : compound.children("sectiondef")) {
        for (pugi::xml_node const member : section.children("memberdef")) {
            if (isToldOf(member)) {
                type.operations.push_back(operationOf(member));
            }
        }
    }
    return type;
}

} // namespace

std::vector<Type> readTypes(fs::path const& folder, std::vector<std::string_view> const& names)
{
    pugi::xml_document const root = load(fileOf(folder, "namespace", rootNamespace));
    std::vector<Type> types;
    for (std::string_view const name : names) {
        auto const found = root.document_element().find_node([&](pugi::xml_node node) {
            return std::string_view(node.attribute("kind").value()) == "enum" &&
                   node.child_value("name") == name;
        });
        auto const qualified = std::string(rootNamespace) + "::" + std::string(name);
        types.push_back(found.empty() ? classOf(fileOf(folder, "class", qualified), name)
                                      : enumerationOf(found));
    }
    return types;
}

std::vector<Operation> readConstants(fs::path const& folder)
{
    pugi::xml_document const root = load(fileOf(folder, "namespace", rootNamespace));
    std::vector<Operation> constants;
    for (auto const& each : root.select_nodes("//memberdef[@kind='variable']")) {
        constants.push_back(operationOf(each.node()));
    }
    return constants;
}

} // namespace reference
