#include "tools/compat/Comparison.h"

#include "text/Suggestion.h"
#include "tools/compat/Pairing.h"

#include <array>
#include <set>
#include <string_view>
#include <utility>

namespace compat {
namespace {

// What is alike is measured in percent; what has the same name comes before all of that.
constexpr unsigned sameName = 1000;
constexpr unsigned samePlace = 100; ///< on top of likeness, for what stayed in its service
constexpr unsigned leastLikeness = 50;

/// How much two sets share, in percent of what they have.
template <typename Set>
unsigned sharedPercent(Set const& one, Set const& other)
{
    if (one.empty() && other.empty()) {
        return 0;
    }
    auto const shared =
        std::ranges::count_if(one, [&](auto const& each) { return other.contains(each); });
    auto const percent = static_cast<std::size_t>(shared) * 200 / (one.size() + other.size());
    return static_cast<unsigned>(percent);
}

std::set<std::string_view> resourcesOf(Interface const& interface, std::string const& service)
{
    std::set<std::string_view> names;
    for (Resource const& resource : interface.resources) {
        if (resource.service == service) {
            names.insert(resource.name);
        }
    }
    return names;
}

/// The fields that are not in every element.
std::set<std::pair<std::string_view, kivgen::Kind>> ownFields(Resource const& resource)
{
    std::set<std::pair<std::string_view, kivgen::Kind>> fields;
    for (Field const& field : resource.fields) {
        if (std::ranges::find(kivgen::commonKeys, field.key) == kivgen::commonKeys.end()) {
            fields.emplace(field.key, field.kind);
        }
    }
    return fields;
}

bool areNear(std::string_view one, std::string_view other)
{
    return !kiv::nearest(one, std::array{other}, 1).empty();
}

bool hasKey(std::vector<Field> const& fields, std::string const& key)
{
    return std::ranges::find(fields, key, &Field::key) != fields.end();
}

/// How many of these fields have a key that the others have not.
std::ptrdiff_t countUnmatched(std::vector<Field> const& fields, std::vector<Field> const& others)
{
    return std::ranges::count_if(fields,
                                 [&](Field const& each) { return !hasKey(others, each.key); });
}

} // namespace

Comparison::Comparison(Interface const& was, Interface const& is) : m_was(&was), m_is(&is)
{
    pairServices();
    pairResources();
}

void Comparison::pairServices()
{
    m_services =
        pairUp(m_was->services, m_is->services, [&](Service const& was, Service const& is) {
            if (was.name == is.name) {
                return sameName;
            }
            unsigned const shared =
                sharedPercent(resourcesOf(*m_was, was.name), resourcesOf(*m_is, is.name));
            return shared < leastLikeness ? 0 : shared;
        });
    for (ServicePair const& pair : m_services) {
        if (pair.isKept()) {
            m_serviceNow.emplace(pair.was->name, pair.is->name);
        }
    }
}

void Comparison::pairResources()
{
    m_resources =
        pairUp(m_was->resources, m_is->resources,
               [&](Resource const& was, Resource const& is) { return likeness(was, is); });
    for (ResourcePair const& pair : m_resources) {
        if (pair.isKept()) {
            m_resourceNow.emplace(pair.was, pair.is);
        }
    }
}

unsigned Comparison::likeness(Resource const& was, Resource const& is) const
{
    unsigned const place = areSame(was.service, is.service) ? samePlace : 0;
    if (place > 0 && was.name == is.name) {
        return sameName;
    }
    auto const before = ownFields(was);
    auto const after = ownFields(is);
    bool const areBare = before.empty() && after.empty();
    unsigned const shared =
        areBare && areNear(was.name, is.name) ? leastLikeness : sharedPercent(before, after);
    return shared < leastLikeness ? 0 : shared + place;
}

std::vector<FieldPair> Comparison::fieldsOf(ResourcePair const& resource) const
{
    if (!resource.isKept()) {
        return {};
    }
    auto const& was = resource.was->fields;
    auto const& is = resource.is->fields;
    bool const isOnlyOne = countUnmatched(was, is) == 1 && countUnmatched(is, was) == 1;
    return pairUp(was, is, [&](Field const& one, Field const& other) -> unsigned {
        if (one.key == other.key) {
            return sameName;
        }
        if (!areLike(one, other)) {
            return 0;
        }
        return areNear(one.key, other.key) ? 2 : isOnlyOne ? 1 : 0;
    });
}

bool Comparison::areLike(Field const& was, Field const& is) const
{
    return was.kind == is.kind &&
           std::ranges::equal(was.targets, is.targets, [&](Target const& one, Target const& other) {
               return areSame(one, other);
           });
}

bool Comparison::areSame(Target const& was, Target const& is) const
{
    if (was.isExternal() || is.isExternal()) {
        return was.isExternal() && is.isExternal();
    }
    auto const found = m_resourceNow.find(&m_was->at(was));
    return found != m_resourceNow.end() && found->second == &m_is->at(is);
}

bool Comparison::areSame(std::string const& was, std::string const& is) const
{
    auto const found = m_serviceNow.find(was);
    return found != m_serviceNow.end() && found->second == is;
}

} // namespace compat
