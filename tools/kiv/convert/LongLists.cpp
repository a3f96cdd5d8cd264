#include "tools/kiv/convert/LongLists.h"

#include "frame/IObjectBase.h"
#include "json/Maps.h"

#include <utility>

namespace kiv {

using common::SerializationType;

void LongLists::read(DocumentPart const& given)
{
    std::string const key = given.part.key;
    List& list = m_lists[key];
    if (given.part.first == 0) {
        list = {};
    }
    if (list.fault) {
        return;
    }
    try {
        auto element = readPart(given, refuseForbidden(given.file), false);
        if (m_form != SerializationType::Reference) {
            auto const value = element->serialize(m_form);
            element.reset();
            auto const* const array = valueAt(static_cast<data::Object const&>(*value), key);
            if (array != nullptr) { // not so if all entries are null
                list.text.push_back(
                    json::entriesText(static_cast<data::Array const&>(*array), m_layout, m_depth));
            }
        }
    } catch (Forbidden const& fault) {
        list.fault = fault;
    }
}

LongLists::Element LongLists::finish(DocumentEntry const& given)
{
    std::erase_if(m_lists,
                  [&](auto const& list) { return !given.entry.given.contains(list.first); });
    auto element = readRest(given);
    given.forget();
    Element result{element->serialize(m_form), {}};
    element.reset();
    for (auto& [key, list] : m_lists) {
        if (list.text.empty()) {
            continue;
        }
        auto& object = static_cast<data::Object&>(*result.value);
        if (valueAt(object, key) == nullptr) {
            object.setNew(key.c_str(), new data::Array);
        }
        result.lists.emplace(key, std::move(list.text));
    }
    m_lists.clear();
    return result;
}

std::unique_ptr<common::IObjectBase> LongLists::readRest(DocumentEntry const& given) const
{
    auto const faulty = std::ranges::find_if(
        m_lists, [](auto const& list) { return list.second.fault.has_value(); });
    std::vector<diagnostics::ListPart> parts;
    for (auto const& [key, count] : given.entry.given) {
        parts.push_back({key, count, true, true});
    }
    try {
        auto element = readEntry(given, refuseForbidden(given.file), parts);
        if (faulty == m_lists.end()) {
            return element;
        }
    } catch (Forbidden const& fault) {
        if (faulty == m_lists.end() || fault.key() < faulty->first) {
            throw;
        }
    }
    throw *faulty->second.fault; // NOLINT: it is a copy
}

} // namespace kiv
