#include "diagnostics/Classes.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <typeindex>
#include <unordered_map>

namespace kiv::diagnostics {

namespace {

namespace catalogue = zel::kiv::catalogue;
using Rows = std::unordered_map<std::type_index, catalogue::Resource const*>;

Rows allRows()
{
    Rows rows;
    for (auto const& row : catalogue::resources()) {
        auto const element = row.makeElement();
        auto const resource = row.makeResource();
        auto const& elementType = *element;
        auto const& resourceType = *resource;
        rows.emplace(typeid(elementType), &row);
        rows.emplace(typeid(resourceType), &row);
    }
    return rows;
}

catalogue::Resource const* rowOf(std::type_info const& type)
{
    // Never freed: other threads may still be at work when the program ends.
    static Rows const& rows = *new Rows(allRows());
    auto const found = rows.find(type);
    return found == rows.end() ? nullptr : found->second;
}

} // namespace

catalogue::Resource const* resourceOf(zel::kiv::common::IObjectBase const& element)
{
    return rowOf(typeid(element));
}

catalogue::Resource const* resourceOf(zel::kiv::common::IResourceBase const& resource)
{
    return rowOf(typeid(resource));
}

} // namespace kiv::diagnostics
