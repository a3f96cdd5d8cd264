#include "generator/model/Checks.h"

#include "generator/Naming.h"
#include "generator/model/Spelling.h"
#include "text/Suggestion.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <span>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace kivgen {
namespace {

namespace fs = std::filesystem;

/// Finds out what is wrong with a target.
class TargetCheck {
public:
    TargetCheck(std::vector<Definition> const& definitions, std::vector<std::string> const& names);

    [[nodiscard]] bool exists(std::string const& target) const;
    [[nodiscard]] std::string whatIsWrong(std::string const& target) const;

    /// Whether there is a file for it whose name has the wrong case.
    [[nodiscard]] bool isMisnamed(std::string const& target) const;

    /// Whether it may have been a resource whose file was removed or renamed.
    [[nodiscard]] bool mayHaveBeen(std::string const& target) const;

private:
    std::vector<std::string_view> m_names;
    std::unordered_map<std::string, std::string> m_resourceOf; ///< by spellings of element classes
};

TargetCheck::TargetCheck(std::vector<Definition> const& definitions,
                         std::vector<std::string> const& names)
    : m_names{names.begin(), names.end()}
{
    for (Definition const& definition : definitions) {
        Resource const& resource = definition.resource;
        auto const name = resource.service + "::" + resource.name;
        m_resourceOf.emplace(name + "::" + resource.element, name);
        m_resourceOf.emplace(resource.service + "::" + resource.element, name);
    }
}

bool TargetCheck::exists(std::string const& target) const
{
    return std::ranges::binary_search(m_names, target);
}

bool TargetCheck::isMisnamed(std::string const& target) const
{
    auto const colons = target.find("::");
    return colons != std::string::npos && std::ranges::any_of(m_names, [&](auto name) {
               return name.size() > colons + 2 && !hasClassForm(name.substr(colons + 2)) &&
                      std::string(name.substr(0, colons + 2)) + stemOf(name.substr(colons + 2)) ==
                          target;
           });
}

bool TargetCheck::mayHaveBeen(std::string const& target) const
{
    auto const colons = target.find("::");
    return colons != std::string::npos && hasServiceForm(target.substr(0, colons)) &&
           hasClassForm(target.substr(colons + 2)) && !m_resourceOf.contains(target);
}

std::string TargetCheck::whatIsWrong(std::string const& target) const
{
    if (auto const found = m_resourceOf.find(target); found != m_resourceOf.end()) {
        return inQuotes(target) + " names an element class; a target is named by its resource, " +
               inQuotes(found->second);
    }
    // A file whose name is refused is a name here too, with whatever bytes it has.
    auto const meant = printable(kiv::didYouMean(target, m_names));
    if (target.find("::") != std::string::npos) {
        return "there is no resource " + inQuotes(target) + meant;
    }
    auto const text = inQuotes(target) + " is no target; a target is spelt service::Resource";
    auto const named =
        std::ranges::find_if(m_names, [&](auto name) { return name.ends_with("::" + target); });
    return named == m_names.end() ? text + meant
                                  : text + "; did you mean " + inQuotes(*named) + "?";
}

std::vector<Mention> mentionIf(bool isWanted, SourcePosition const& place, std::string const& text)
{
    return isWanted ? std::vector<Mention>{{place, text}} : std::vector<Mention>{};
}

/// That no file stands for a target which several fields hold.
Fault missingFile(std::string const& target, std::string const& what,
                  std::vector<SourcePosition> const& places)
{
    constexpr std::size_t mostPlaces = 20;
    auto const services = fs::path{places.front().file}.parent_path().parent_path();
    auto const colons = target.find("::");
    auto const file = services / target.substr(0, colons) / (target.substr(colons + 2) + ".toml");
    Fault fault{{file.generic_string()},
                "is missing: " + what + "; " + std::to_string(places.size()) + " fields hold it",
                {},
                true};
    for (SourcePosition const& place :
         std::span{places}.first(std::min(places.size(), mostPlaces))) {
        fault.also.push_back({place, "held here"});
    }
    return fault;
}

/// The field that stands further down in the file.
Field const& lowerOf(Field const& one, Field const& other)
{
    auto const position = [](Field const& field) {
        return std::tie(field.place.line, field.place.column);
    };
    return position(one) < position(other) ? other : one;
}

void checkAccessorsOf(Resource const& resource, Interface const& interface, Faults& faults)
{
    // An element inherits one operation that is named as an accessor.
    std::unordered_map<std::string, Field const*> owners{{"getServiceAndResourceString", nullptr}};
    for (Field const& field : resource.fields) {
        for (std::string const& name : accessorNames(field, interface)) {
            auto const [entry, isNew] = owners.emplace(name, &field);
            if (isNew) {
                continue;
            }
            Field const* const owner = entry->second;
            if (owner == nullptr) {
                faults.push_back({field.place, "the key " + inQuotes(field.key) +
                                                   " gives the accessor " + inQuotes(name) +
                                                   ", which every element inherits"});
            } else if (owner == &field) {
                faults.push_back({field.place, "two targets of " + inQuotes(field.key) +
                                                   " give the same accessor " + inQuotes(name)});
            } else {
                Field const& lower = lowerOf(field, *owner);
                Field const& upper = &lower == owner ? field : *owner;
                bool const isWritten = upper.place.line != 0;
                faults.push_back(
                    {lower.place,
                     "the key " + inQuotes(lower.key) + " gives the accessor " + inQuotes(name) +
                         ", which " + inQuotes(upper.key) +
                         (isWritten ? " has too" : ", a key of every element, has too"),
                     mentionIf(isWritten, upper.place, inQuotes(upper.key) + " stands here")});
            }
            break; // the others of the same field say nothing new
        }
    }
}

} // namespace

void checkTargets(std::vector<Definition> const& definitions, std::vector<std::string> const& names,
                  Faults& faults)
{
    std::map<std::string, std::vector<SourcePosition>> missing; // by how the target is spelt
    TargetCheck const check{definitions, names};
    for (Definition const& definition : definitions) {
        for (Use const& use : definition.uses) {
            if (!check.exists(use.text)) {
                missing[use.text].push_back(use.place);
            }
        }
    }
    std::size_t wrong = 0;
    for (auto const& [target, places] : missing) {
        if (check.isMisnamed(target)) {
            continue; // the name of its file is told of
        }
        auto const what = ++wrong <= mostSuggestions ? check.whatIsWrong(target)
                                                     : "there is no resource " + inQuotes(target);
        if (places.size() > 1 && check.mayHaveBeen(target)) {
            faults.push_back(missingFile(target, what, places));
            continue;
        }
        for (SourcePosition const& place : places) {
            faults.push_back({place, what});
        }
    }
}

void checkResourceKeys(std::vector<Definition> const& definitions, Faults& faults)
{
    std::map<std::pair<std::string, std::string>, Definition const*> owners;
    for (Definition const& definition : definitions) {
        Resource const& resource = definition.resource;
        auto const [entry, isNew] =
            owners.emplace(std::pair{resource.service, lowered(resource.resourceKey)}, &definition);
        if (isNew) {
            continue;
        }
        // Best told where a key is given: the other may be as it must be.
        Definition const* one = &definition;
        Definition const* other = entry->second;
        if (one->placeOfKey.line == 0) {
            std::swap(one, other);
        }
        bool const isSame = one->resource.resourceKey == other->resource.resourceKey;
        std::string const shown = inQuotes(other->resource.resourceKey);
        faults.push_back({one->placeOfKey,
                          "the resource key " + inQuotes(one->resource.resourceKey) +
                              (isSame ? " is that of " : " is but for its first letter that of ") +
                              other->resource.place.file + "; uris could not tell them apart",
                          {{other->placeOfKey, shown + " is the key of this resource"}}});
    }
}

void checkElementNames(std::vector<Definition> const& definitions, Faults& faults)
{
    std::map<std::pair<std::string, std::string>, Resource const*> resources;
    for (Definition const& definition : definitions) {
        Resource const& resource = definition.resource;
        resources.emplace(std::pair{resource.service, resource.name}, &resource);
    }
    for (Definition const& definition : definitions) {
        Resource const& resource = definition.resource;
        auto const found = resources.find({resource.service, resource.element});
        if (found != resources.end() && found->second != &resource) {
            faults.push_back({definition.placeOfElement,
                              "the element class " + inQuotes(resource.element) +
                                  " has the name of a resource class of this service; rename one",
                              {{found->second->place, "the resource class is defined here"}}});
        }
    }
}

void checkAccessors(Interface const& interface, Faults& faults)
{
    for (Resource const& resource : interface.resources) {
        checkAccessorsOf(resource, interface, faults);
    }
}

} // namespace kivgen
