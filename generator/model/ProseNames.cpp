#include "generator/model/ProseNames.h"

#include "text/Suggestion.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace kivgen {
namespace {

constexpr std::array<std::string_view, 5> frameNames{
    "ElementStatus", "ExternalResourceObject", "IObjectBase", "IResourceBase", "SerializationType"};

/// Every name that holds everywhere, with the definition that it stands for: null for a service, a
/// class of the frame, and a resource whose file cannot be read.
using Names = std::map<std::string, Definition const*, std::less<>>;

class Check {
public:
    Check(std::vector<Definition> const& definitions, std::vector<ServiceFile> const& services,
          std::vector<std::string> const& files, Faults& faults);

    /// `own` is null in the text of a service.
    void check(Prose const& prose, std::string const& service, Definition const* own);

private:
    std::string whatIsWrong(std::string const& name, Names const& local, Definition const* own);
    [[nodiscard]] std::string ownerOf(std::string const& key) const;

    std::vector<Definition> const& m_definitions;
    Faults& m_faults;
    Names m_everywhere;
    std::map<std::string, Names> m_local; ///< by service: its resources and elements
    std::size_t m_wrong = 0;
};

Check::Check(std::vector<Definition> const& definitions, std::vector<ServiceFile> const& services,
             std::vector<std::string> const& files, Faults& faults)
    : m_definitions{definitions}, m_faults{faults}
{
    for (Definition const& definition : definitions) {
        Resource const& resource = definition.resource;
        auto const name = resource.service + "::" + resource.name;
        m_everywhere.emplace(name, &definition);
        m_everywhere.emplace(name + "::" + resource.element, &definition);
        m_everywhere.emplace(resource.service + "/" + resource.resourceKey, &definition);
        m_local[resource.service].emplace(resource.name, &definition);
        m_local[resource.service].emplace(resource.element, &definition);
    }
    for (ServiceFile const& file : services) {
        m_everywhere.emplace(file.service.name, nullptr);
    }
    for (auto const name : frameNames) {
        m_everywhere.emplace(name, nullptr);
    }
    for (std::string const& file : files) {
        m_everywhere.emplace(file, nullptr); // unless it is there already
    }
}

void Check::check(Prose const& prose, std::string const& service, Definition const* own)
{
    auto const& local = m_local[service];
    std::vector<Definition const*> scope;
    std::vector<std::string const*> rest;
    for (std::string const& name : prose.names) {
        auto const& names = local.contains(name) ? local : m_everywhere;
        if (auto const found = names.find(name); found != names.end()) {
            scope.push_back(found->second);
        } else {
            rest.push_back(&name);
        }
    }
    scope.push_back(own);
    for (std::string const* const name : rest) {
        bool const isKey = std::ranges::any_of(scope, [name](Definition const* definition) {
            return definition != nullptr && definition->keys.contains(*name);
        });
        if (!isKey) {
            m_faults.push_back({prose.place, whatIsWrong(*name, local, own)});
        }
    }
}

std::string Check::ownerOf(std::string const& key) const
{
    auto const owner = std::ranges::find_if(
        m_definitions, [&](Definition const& definition) { return definition.keys.contains(key); });
    return owner == m_definitions.end() ? ""
                                        : owner->resource.service + "::" + owner->resource.name;
}

std::string Check::whatIsWrong(std::string const& name, Names const& local, Definition const* own)
{
    auto text = "there is no " + inQuotes(name) + " to name in backticks";
    if (++m_wrong > mostSuggestions) {
        return text;
    }
    if (auto const owner = ownerOf(name); !owner.empty()) {
        return inQuotes(name) +
               " is a key of another element; a text that names it names its resource too, such "
               "as " +
               inQuotes(owner);
    }
    std::vector<std::string_view> known;
    if (own != nullptr) {
        known.assign(own->keys.begin(), own->keys.end());
    }
    for (auto const& [one, definition] : local) {
        known.emplace_back(one);
    }
    for (auto const& [one, definition] : m_everywhere) {
        known.emplace_back(one);
    }
    // A file whose name is refused is a name here too, with whatever bytes it has.
    return text + printable(kiv::didYouMean(name, known));
}

} // namespace

void checkProseNames(std::vector<Definition> const& definitions,
                     std::vector<ServiceFile> const& services,
                     std::vector<std::string> const& files, Faults& faults)
{
    Check check{definitions, services, files, faults};
    for (Definition const& definition : definitions) {
        for (Prose const& prose : definition.prose) {
            check.check(prose, definition.resource.service, &definition);
        }
    }
    for (ServiceFile const& file : services) {
        check.check(file.about, file.service.name, nullptr);
    }
}

} // namespace kivgen
