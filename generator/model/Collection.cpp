#include "generator/model/Collection.h"

#include "generator/Naming.h"
#include "generator/model/Checks.h"
#include "generator/model/ProseNames.h"
#include "generator/model/Spelling.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace kivgen {

void Collection::checkServiceName(std::string const& name, SourcePosition const& place)
{
    if (!hasServiceForm(name)) {
        fail(place, "the service name " + inQuotes(name) +
                        " must be lower-case letters and digits, a letter first");
    } else if (isReservedService(name)) {
        fail(place, "the service name " + inQuotes(name) +
                        " is a word that the generated code needs; take another");
    }
}

void Collection::checkResourceName(std::string const& name, SourcePosition const& place)
{
    if (!hasClassForm(name)) {
        auto const raised = stemOf(name);
        fail(place, "the resource class " + inQuotes(name) +
                        " must begin with a capital and go on with letters and digits" +
                        (hasClassForm(raised) ? "; did you mean " + inQuotes(raised) + "?" : ""));
    } else if (isReservedClass(name)) {
        fail(place, "the resource class " + inQuotes(name) +
                        " has a name that the generated code needs; take another");
    }
}

void Collection::addService(std::optional<Node> const& document, std::string const& service,
                            SourcePosition const& place)
{
    if (document) {
        m_services.push_back(readServiceFile(*document, service, place, m_faults));
    }
}

void Collection::addDefinition(std::optional<Node> const& document, std::string const& service,
                               std::string const& name, SourcePosition const& place)
{
    checkResourceName(name, place);
    m_names.push_back(service + "::" + name);
    m_isWhole = m_isWhole && (!document || document->isWhole);
    if (document) {
        m_definitions.push_back(readDefinition(*document, service, name, place, m_faults));
    }
}

Loaded Collection::finish()
{
    Interface interface;
    for (Definition const& definition : m_definitions) {
        interface.resources.push_back(definition.resource);
    }
    for (ServiceFile const& file : m_services) {
        interface.services.push_back(file.service);
    }
    std::ranges::sort(interface.resources, {},
                      [](Resource const& one) { return std::tie(one.service, one.name); });
    std::ranges::sort(interface.services, {}, &Service::name);
    checkWhole(interface);
    return {std::move(interface), std::move(m_faults)};
}

/// What can only be seen when everything is known.
void Collection::checkWhole(Interface const& interface)
{
    std::ranges::sort(m_names);
    checkTargets(m_definitions, m_names, m_faults);
    checkResourceKeys(m_definitions, m_faults);
    checkElementNames(m_definitions, m_faults);
    checkAccessors(interface, m_faults);
    // Texts name what may come back when such a fault is mended.
    bool const isCaused = std::ranges::any_of(m_faults, &Fault::isCause);
    if (m_isWhole && !isCaused) {
        checkProseNames(m_definitions, m_services, m_names, m_faults);
    }
    std::ranges::stable_sort(m_faults, {}, [](Fault const& one) {
        using Rank =
            std::tuple<bool, std::string const&, std::size_t, std::size_t, std::string const&>;
        auto const& place = one.place;
        return Rank{!one.isCause, place.file, place.line, place.column, one.text};
    });
}

} // namespace kivgen
