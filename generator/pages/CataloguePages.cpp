#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/pages/Pages.h"
#include "generator/pages/Signatures.h"

#include <algorithm>
#include <map>
#include <set>

namespace kivgen {

namespace {

constexpr std::string_view table = R"(
$mark$all definitions
#include "catalogue/Table.h"

namespace zel::kiv::catalogue {

namespace make {
$makers$
} // namespace make

// With its size, which those who point into it before it is defined need to know.
extern Resource const table[$size$];

namespace {

$accessors$

$targets$

$fields$

} // namespace

Resource const table[$size$] = {
$rows$
};

std::size_t const tableSize = $size$;

Service const serviceTable[$services$] = {
$serviceRows$
};

std::size_t const serviceTableSize = $services$;

} // namespace zel::kiv::catalogue
)";

constexpr std::string_view makers = R"(
$mark$the definitions of services/$service$
$includes$

#include <memory>

namespace zel::kiv::catalogue::make {
$makers$

} // namespace zel::kiv::catalogue::make
)";

std::string literal(std::string_view text)
{
    std::string result = "\"";
    for (char const each : text) {
        if (each == '"' || each == '\\') {
            result += '\\';
        }
        result += each;
    }
    return result + '"';
}

/// The word by which a resource's functions and rows go: `radioPresets`.
std::string wordOf(Resource const& resource)
{
    return resource.service + resource.name;
}

std::string enumeratorOf(Kind kind)
{
    std::string name;
    std::string_view const word = zel::kiv::catalogue::wordOf(kind);
    bool raised = true;
    for (char const each : word) {
        if (each == ' ') {
            raised = true;
            continue;
        }
        name += raised ? stemOf(std::string(1, each)) : std::string(1, each);
        raised = false;
    }
    return "Kind::" + name;
}

std::string makerDeclarations(Resource const& resource)
{
    std::string const word = wordOf(resource);
    return "std::unique_ptr<common::IResourceBase> " + word +
           "();\nstd::unique_ptr<common::IObjectBase> " + word + "Element();\n";
}

std::string makerDefinitions(Resource const& resource)
{
    return fill(R"(

std::unique_ptr<common::IResourceBase> $word$()
{
    return std::make_unique<common::$service$::$Resource$>();
}

std::unique_ptr<common::IObjectBase> $word$Element()
{
    return std::make_unique<common::$service$::$Resource$::$Element$>();
}
)",
                {{"word", wordOf(resource)},
                 {"service", resource.service},
                 {"Resource", resource.name},
                 {"Element", resource.element}});
}

/// Lists of rows that several owners point into, each list written once.
class Rows {
public:
    Rows(std::string type, std::string name) : m_type(std::move(type)), m_name(std::move(name)) {}

    /// The span of these rows, as an initialiser.
    std::string add(std::vector<std::string> const& rows)
    {
        if (rows.empty()) {
            return "{}";
        }
        std::string key;
        for (std::string const& row : rows) {
            key += "    " + row + ",\n";
        }
        auto const [place, isNew] = m_places.try_emplace(key, m_size);
        if (isNew) {
            m_text += key;
            m_size += rows.size();
        }
        return "{" + m_name + " + " + std::to_string(place->second) + ", " +
               std::to_string(rows.size()) + "}";
    }

    [[nodiscard]] std::string text() const
    {
        return "constexpr " + m_type + ' ' + m_name + "[] = {\n" + m_text + "};\n";
    }

private:
    std::string m_type;
    std::string m_name;
    std::string m_text;
    std::size_t m_size = 0;
    std::map<std::string, std::size_t> m_places;
};

/// The place of each resource in the table.
std::string pointerTo(Target const& target, Interface const& interface)
{
    if (target.isExternal()) {
        return "nullptr";
    }
    auto const place = interface.find(target.service, target.resource) - interface.resources.data();
    return "table + " + std::to_string(place);
}

std::vector<std::string> accessorRows(Field const& field, Interface const& interface)
{
    std::vector<std::string> rows;
    for (Accessor const& each : codeOf(field, interface).accessors) {
        rows.push_back("{" + literal(each.name) + ", " + literal(signatureOf(each)) + "}");
    }
    return rows;
}

std::vector<std::string> targetRows(Field const& field, Interface const& interface)
{
    std::vector<std::string> rows;
    for (Target const& target : field.targets) {
        rows.push_back(pointerTo(target, interface));
    }
    return rows;
}

std::string resourceRow(Resource const& resource, std::string const& fields)
{
    std::string const word = wordOf(resource);
    return "    {" + literal(resource.service) + ", " + literal(resource.name) + ", " +
           literal(resource.element) + ", " + literal(resource.resourceKey) + ", " +
           literal(resource.elementKey) + ", " + literal(resource.about) + ", " + fields +
           ", &make::" + word + ", &make::" + word + "Element},\n";
}

std::string serviceRow(Service const& service, Interface const& interface)
{
    auto const& all = interface.resources;
    auto const begin = std::ranges::lower_bound(all, service.name, {}, &Resource::service);
    auto const end = std::ranges::upper_bound(all, service.name, {}, &Resource::service);
    return "    {" + literal(service.name) + ", " + literal(service.group) + ", " +
           literal(service.about) + ", {table + " + std::to_string(begin - all.begin()) + ", " +
           std::to_string(end - begin) + "}},\n";
}

} // namespace

Page cataloguePage(Interface const& interface)
{
    Rows accessors("Accessor", "accessors");
    Rows targets("Resource const* const", "targets");
    Rows fields("Field", "fields");
    std::string declarations;
    std::string rows;
    for (Resource const& resource : interface.resources) {
        declarations += makerDeclarations(resource);
        std::vector<std::string> ownFields;
        for (Field const& field : resource.fields) {
            ownFields.push_back("{" + literal(field.key) + ", " + enumeratorOf(field.kind) + ", " +
                                literal(field.note) + ", " +
                                targets.add(targetRows(field, interface)) + ", " +
                                accessors.add(accessorRows(field, interface)) + "}");
        }
        rows += resourceRow(resource, fields.add(ownFields));
    }
    std::string serviceRows;
    for (Service const& service : interface.services) {
        serviceRows += serviceRow(service, interface);
    }
    return {"catalogue/Table.cpp",
            fill(table, {{"mark", generatedMark},
                         {"makers", declarations},
                         {"accessors", accessors.text()},
                         {"targets", targets.text()},
                         {"fields", fields.text()},
                         {"size", std::to_string(interface.resources.size())},
                         {"rows", rows},
                         {"services", std::to_string(interface.services.size())},
                         {"serviceRows", serviceRows}})};
}

Page makersPage(std::string const& service, Interface const& interface)
{
    std::string includes;
    std::string definitions;
    for (Resource const& resource : interface.resources) {
        if (resource.service == service) {
            includes += "#include \"services/" + service + '/' + resource.name + ".h\"\n";
            definitions += makerDefinitions(resource);
        }
    }
    return {"catalogue/" + service + ".cpp", fill(makers, {{"mark", generatedMark},
                                                           {"service", service},
                                                           {"includes", includes},
                                                           {"makers", definitions}})};
}

std::vector<Page> allPages(Interface const& interface)
{
    std::vector<Page> pages;
    std::set<std::string> services;
    for (Resource const& resource : interface.resources) {
        pages.push_back(headerPage(resource, interface));
        pages.push_back(sourcePage(resource, interface));
        services.insert(resource.service);
    }
    for (std::string const& service : services) {
        pages.push_back(makersPage(service, interface));
    }
    pages.push_back(cataloguePage(interface));
    return pages;
}

} // namespace kivgen
