#include "tools/compat/Rules.h"

namespace compat {
namespace {

using kivgen::SourcePosition;

/// Where the thing stands; without a file if it is not there.
template <typename Thing>
SourcePosition placeOf(Thing const* thing, std::string_view /*row*/)
{
    return thing == nullptr ? SourcePosition{} : thing->place;
}

/// Of a resource, where the row stands that is meant, if it has such a row.
SourcePosition placeOf(Resource const* resource, std::string_view row)
{
    if (resource == nullptr) {
        return {};
    }
    auto const found = resource->rows.find(std::string(row));
    return found == resource->rows.end() ? resource->place : found->second;
}

/// Asks all rules for that kind of thing.
template <typename Thing>
void look(Comparison const& comparison, Pair<Thing> const& pair, std::string const& subject,
          std::vector<Change>& changes)
{
    for (Rule const& rule : rules()) {
        if (auto const* const handler = std::get_if<Handler<Thing>>(&rule.handler)) {
            if (auto what = (*handler)(comparison, pair)) {
                changes.push_back({&rule, subject, std::move(*what), placeOf(pair.was, rule.row),
                                   placeOf(pair.is, rule.row)});
            }
        }
    }
}

} // namespace

std::vector<Change> changesBetween(Interface const& was, Interface const& is)
{
    Comparison const comparison(was, is);
    std::vector<Change> changes;
    for (ServicePair const& service : comparison.services()) {
        look(comparison, service, service.any().name, changes);
    }
    for (ResourcePair const& resource : comparison.resources()) {
        auto const name = resource.any().service + "/" + resource.any().resourceKey;
        look(comparison, resource, name, changes);
        for (FieldPair const& field : comparison.fieldsOf(resource)) {
            look(comparison, field, name + "." + field.any().key, changes);
        }
    }
    return changes;
}

} // namespace compat
