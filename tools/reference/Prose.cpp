#include "tools/reference/Prose.h"

#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/Html.h"

#include <set>
#include <utility>

namespace reference {

namespace {

using kiv::catalogue::Resource;

/// A text cut at each `mark`: prose and names in turn, prose first.
std::vector<std::string_view> cutAt(std::string_view text, char mark)
{
    std::vector<std::string_view> parts;
    for (auto end = text.find(mark); end != std::string_view::npos; end = text.find(mark)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

std::string link(std::string_view address, std::string_view name)
{
    return "<a href=\"" + escaped(address) + "\"><code>" + breakable(name) + "</code></a>";
}

} // namespace

Prose::Prose(std::vector<Type> const& frame)
{
    for (auto const service : kiv::services()) {
        m_places.emplace(service, Place{addressOf(service), nullptr});
    }
    for (Resource const& resource : kiv::catalogue::resources()) {
        add(resource);
    }
    std::set<std::string> ambiguous;
    for (Type const& type : frame) {
        std::string const address = "frame.html#" + type.name;
        m_places.emplace(type.name, Place{address, nullptr});
        for (Value const& value : type.values) {
            std::string const place = address + '.' + value.name;
            m_places.emplace(type.name + "::" + value.name, Place{place, nullptr});
            m_members.emplace(value.name, Place{place, nullptr});
        }
        for (Operation const& operation : type.operations) {
            Place const place{address + '.' + operation.name, nullptr};
            bool const isFirst = m_members.emplace(operation.name, place).second;
            if (!isFirst) {
                ambiguous.insert(operation.name);
            }
        }
    }
    for (std::string const& name : ambiguous) {
        m_members.erase(name);
    }
}

void Prose::add(Resource const& resource)
{
    Place const place{addressOf(resource), &resource};
    m_places.emplace(resource.resourceClass, place);
    m_places.emplace(resource.elementClass, place);
    m_places.emplace(kiv::nameOf(&resource), place);
    Places& within = m_within[std::string(resource.service)];
    within.emplace(resource.name, place);
    within.emplace(resource.element, place);
}

Prose::Place const* Prose::find(std::string_view name, std::string_view service) const
{
    auto const found = [&](Places const& places) {
        auto const each = places.find(name);
        return each == places.end() ? nullptr : &each->second;
    };
    auto const within = m_within.find(std::string(service));
    auto const* const local = within == m_within.end() ? nullptr : found(within->second);
    return local != nullptr ? local : found(m_places);
}

std::string Prose::htmlOf(std::string_view text, std::string_view service,
                          Resource const* own) const
{
    auto const parts = cutAt(text, '`');
    std::vector<Resource const*> scope{own};
    for (std::size_t place = 1; place < parts.size(); place += 2) {
        if (auto const* const named = find(parts[place], service)) {
            scope.push_back(named->resource);
        }
    }
    auto const keyAddress = [&](std::string_view name) -> std::string {
        for (Resource const* const resource : scope) {
            auto const* const field = resource == nullptr ? nullptr : resource->find(name);
            if (field != nullptr) {
                return addressOf(*resource, *field);
            }
        }
        return {};
    };
    std::string html = escaped(parts.front());
    for (std::size_t place = 1; place < parts.size(); ++place) {
        if (place % 2 == 0) {
            html += escaped(parts[place]);
            continue;
        }
        auto const* const named = find(parts[place], service);
        auto const address = named != nullptr ? named->address : keyAddress(parts[place]);
        html += address.empty() ? "<code>" + breakable(parts[place]) + "</code>"
                                : link(address, parts[place]);
    }
    return html;
}

std::string Prose::linked(std::string_view html) const
{
    constexpr std::string_view open = "<code>";
    constexpr std::string_view close = "</code>";
    std::string result;
    for (auto start = html.find(open); start != std::string_view::npos; start = html.find(open)) {
        auto const end = html.find(close, start);
        auto const name = html.substr(start + open.size(), end - start - open.size());
        result += html.substr(0, start);
        auto const* place = find(name, {});
        if (auto const member = m_members.find(name);
            place == nullptr && member != m_members.end()) {
            place = &member->second;
        }
        result += place != nullptr ? link(place->address, name)
                                   : std::string(html.substr(start, end + close.size() - start));
        html.remove_prefix(end + close.size());
    }
    return result.append(html);
}

std::string_view firstSentence(std::string_view text)
{
    auto const end = text.find(". ");
    return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

} // namespace reference
