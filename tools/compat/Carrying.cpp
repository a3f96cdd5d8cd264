#include "tools/compat/Carrying.h"

#include <algorithm>
#include <set>
#include <utility>

namespace compat {
namespace {

using zel::kiv::catalogue::isList;
using zel::kiv::catalogue::isNested;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::traitsOf;

/// Answers one question. Elements hold each other in cycles: whoever is asked about again on the
/// way is taken to be carried, since nothing but the rest of the way can show otherwise.
class Inquiry {
public:
    explicit Inquiry(Comparison const& comparison)
        : m_was(&comparison.was()), m_is(&comparison.is())
    {
    }

    bool carries(Resource const& was, Resource const& is)
    {
        if (!m_assumed.emplace(&was, &is).second) {
            return true;
        }
        return std::ranges::all_of(was.fields, [&](Field const& field) {
            auto const same = std::ranges::find(is.fields, field.key, &Field::key);
            return same != is.fields.end() && carries(field, *same);
        });
    }

    bool carries(Field const& was, Field const& is)
    {
        if (!isNested(was.kind) || !isNested(is.kind)) {
            return was.kind == is.kind;
        }
        if (isList(was.kind) != isList(is.kind)) {
            return false;
        }
        if (is.kind == Kind::Polymorphic) {
            // An element that names no target in its uri is dropped, which only that kind does.
            return was.kind == Kind::Polymorphic && dispatches(was, is);
        }
        return std::ranges::all_of(was.targets, [&](Target const& target) {
            return carries(m_was->at(target), m_is->at(is.targets.front()));
        });
    }

private:
    bool dispatches(Field const& was, Field const& is)
    {
        return std::ranges::all_of(was.targets, [&](Target const& target) {
            Resource const* const now = resourceAt(m_was->at(target), is);
            return now != nullptr && carries(m_was->at(target), *now);
        });
    }

    /// What the new field makes of uris that name that resource of the old side.
    Resource const* resourceAt(Resource const& was, Field const& is)
    {
        Resource const* lastResort = nullptr;
        for (Target const& target : is.targets) {
            Resource const& now = m_is->at(target);
            if (target.isExternal()) {
                lastResort = &now;
            } else if (now.service == was.service && now.resourceKey == was.resourceKey) {
                return &now;
            }
        }
        return lastResort;
    }

    Interface const* m_was;
    Interface const* m_is;
    std::set<std::pair<Resource const*, Resource const*>> m_assumed;
};

std::string_view entryReadAs(Kind was, Kind is)
{
    bool const wasText = was == Kind::String;
    switch (is) {
    case Kind::String:
    case Kind::Int:
    case Kind::Double:
    case Kind::Bool:
        return "whatever the platform converts it to";
    case Kind::Element:
    case Kind::External:
        return wasText         ? "an element that has the text for its uri"
               : isNested(was) ? "an element with the fields that both have"
                               : "an empty element";
    case Kind::Polymorphic:
        return wasText         ? "an element that has the text for its uri, if that names a target"
               : isNested(was) ? "an element with the fields that both have, if its uri names a "
                                 "target; otherwise nothing"
                               : "nothing";
    case Kind::StringList:
    case Kind::IntList:
    case Kind::ElementList:
    case Kind::ExternalList:
        break; // no kind of an entry
    }
    return "nothing";
}

} // namespace

bool carries(Comparison const& comparison, Field const& was, Field const& is)
{
    return Inquiry(comparison).carries(was, is);
}

bool carries(Comparison const& comparison, Resource const& was, Resource const& is)
{
    return Inquiry(comparison).carries(was, is);
}

std::string readAs(Field const& was, Field const& is)
{
    auto const read = entryReadAs(traitsOf(was.kind).entry, traitsOf(is.kind).entry);
    if (isList(was.kind) && isList(is.kind)) {
        return "each entry as " + std::string(read);
    }
    if (isList(is.kind)) {
        return "nothing, since it is no array";
    }
    // An array is of no kind that an entry can have.
    return std::string(isList(was.kind) ? entryReadAs(Kind::StringList, is.kind) : read);
}

} // namespace compat
