#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/pages/Pages.h"
#include "generator/pages/Signatures.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace kivgen {

namespace {

constexpr std::string_view table = R"(
$mark$all definitions
#include "catalogue/Table.h"

#include "frame/ExternalResourceObject.h"

namespace zel::kiv::catalogue {

namespace make {
$makers$
std::unique_ptr<common::IObjectBase> externalElement()
{
    return std::make_unique<common::ExternalResourceObject>();
}
} // namespace make

// With its size, which those who point into it before it is defined need to know.
extern Resource const table[$rowCount$];

namespace {

$accessors$

$targets$

$fields$

} // namespace

Resource const table[$rowCount$] = {
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
    return resource.isExternal() ? "external" : resource.service + resource.name;
}

std::string_view wordOf(Purpose purpose)
{
    switch (purpose) {
    case Purpose::Get:
        return "Get";
    case Purpose::Set:
        return "Set";
    case Purpose::Add:
        return "Add";
    case Purpose::Presence:
        return "Presence";
    }
    throw std::logic_error("an accessor without a purpose");
}

Block makerDeclarations(Resource const& resource)
{
    std::string const word = wordOf(resource);
    return "std::unique_ptr<common::IResourceBase> " + word +
           "();\nstd::unique_ptr<common::IObjectBase> " + word + "Element();\n";
}

Block makerDefinitions(Resource const& resource)
{
    return fill(R"(

std::unique_ptr<common::IResourceBase> $word$()
{
    return std::make_unique<common::$Resource$>();
}

std::unique_ptr<common::IObjectBase> $word$Element()
{
    return std::make_unique<common::$Element$>();
}
)",
                {{"word", wordOf(resource)},
                 {"Resource", resourceClassOf(resource)},
                 {"Element", elementClassOf(resource)}});
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
            key += row + ",\n";
        }
        auto const [place, isNew] = m_places.try_emplace(key, m_size);
        if (isNew) {
            m_text += key;
            m_size += rows.size();
        }
        return "{" + m_name + " + " + std::to_string(place->second) + ", " +
               std::to_string(rows.size()) + "}";
    }

    [[nodiscard]] Block text() const
    {
        return fill(R"(
constexpr $type$ $name$[] = {
    $rows$
};
)",
                    {{"type", m_type}, {"name", m_name}, {"rows", m_text}});
    }

private:
    std::string m_type;
    std::string m_name;
    std::string m_text;
    std::size_t m_size = 0;
    std::map<std::string, std::size_t> m_places;
};

/// The address of the target's row in the table; that of what is external is the last.
std::string pointerTo(Target const& target, Interface const& interface)
{
    auto const& resources = interface.resources;
    auto const place = target.isExternal()
                           ? resources.size()
                           : static_cast<std::size_t>(&interface.at(target) - resources.data());
    return "table + " + std::to_string(place);
}

std::vector<std::string> accessorRows(Field const& field, Interface const& interface)
{
    std::vector<std::string> rows;
    for (Accessor const& each : codeOf(field, interface).accessors) {
        rows.push_back("{" + literal(each.name) + ", " + literal(signatureOf(each)) +
                       ", Purpose::" + std::string(wordOf(each.purpose)) + ", " +
                       (each.target ? pointerTo(*each.target, interface) : "nullptr") + "}");
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

std::vector<std::string> fieldRows(Resource const& resource, Interface const& interface,
                                   Rows& targets, Rows& accessors)
{
    std::vector<std::string> rows;
    for (Field const& field : resource.fields) {
        rows.push_back("{" + literal(field.key) + ", Kind::" + enumeratorOf(field.kind) + ", " +
                       literal(field.note) + ", " + targets.add(targetRows(field, interface)) +
                       ", " + accessors.add(accessorRows(field, interface)) + "}");
    }
    return rows;
}

std::string resourceRow(Resource const& resource, std::string const& fields)
{
    std::string row = "{";
    for (std::string const& text :
         {resource.service, resource.name, resource.element, resource.resourceKey,
          resource.elementKey, headerOf(resource), resourceClassOf(resource),
          elementClassOf(resource), resource.about}) {
        row += literal(text) + ", ";
    }
    std::string const word = wordOf(resource);
    return row + fields + ", " + (resource.isExternal() ? "nullptr" : "&make::" + word) +
           ", &make::" + word + "Element},\n";
}

std::string serviceRow(Service const& service, Interface const& interface)
{
    auto const& all = interface.resources;
    auto const begin = std::ranges::lower_bound(all, service.name, {}, &Resource::service);
    auto const end = std::ranges::upper_bound(all, service.name, {}, &Resource::service);
    return "{" + literal(service.name) + ", " + literal(service.group) + ", " +
           literal(service.about) + ", {table + " + std::to_string(begin - all.begin()) + ", " +
           std::to_string(end - begin) + "}},\n";
}

} // namespace

std::string tablePage(Interface const& interface)
{
    Rows accessors("Accessor", "accessors");
    Rows targets("Resource const* const", "targets");
    Rows fields("Field", "fields");
    Block declarations;
    std::string rows;
    for (Resource const& resource : interface.resources) {
        declarations += makerDeclarations(resource);
        rows +=
            resourceRow(resource, fields.add(fieldRows(resource, interface, targets, accessors)));
    }
    rows += resourceRow(interface.external,
                        fields.add(fieldRows(interface.external, interface, targets, accessors)));
    std::string serviceRows;
    for (Service const& service : interface.services) {
        serviceRows += serviceRow(service, interface);
    }
    return fill(table, {{"mark", generatedMark},
                        {"makers", declarations},
                        {"accessors", accessors.text()},
                        {"targets", targets.text()},
                        {"fields", fields.text()},
                        {"size", std::to_string(interface.resources.size())},
                        {"rowCount", std::to_string(interface.resources.size() + 1)},
                        {"rows", rows},
                        {"services", std::to_string(interface.services.size())},
                        {"serviceRows", serviceRows}})
        .at(0);
}

std::string makersPage(Service const& service, Interface const& interface)
{
    std::string includes;
    Block definitions;
    for (Resource const& resource : interface.resources) {
        if (resource.service == service.name) {
            includes += "#include \"" + headerOf(resource) + "\"\n";
            definitions += makerDefinitions(resource);
        }
    }
    return fill(makers, {{"mark", generatedMark},
                         {"service", service.name},
                         {"includes", includes},
                         {"makers", definitions}})
        .at(0);
}

} // namespace kivgen
