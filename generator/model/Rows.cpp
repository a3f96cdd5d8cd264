#include "generator/model/Rows.h"

#include "text/Suggestion.h"

#include <algorithm>

namespace kivgen {

Entry const* find(Node const& table, std::string_view key)
{
    auto const found = std::ranges::find(table.table, key, &Entry::key);
    return found == table.table.end() ? nullptr : &*found;
}

std::string const* textOf(Entry const& row, Faults& faults)
{
    if (row.value.type == Node::Type::Text) {
        return &row.value.text;
    }
    faults.push_back({row.value.place, inQuotes(row.key) + " takes a string, not " +
                                           std::string{row.value.typeName}});
    return nullptr;
}

bool isTable(Entry const& row, Faults& faults)
{
    if (row.value.type == Node::Type::Table) {
        return true;
    }
    faults.push_back({row.value.place, inQuotes(row.key) + " takes a table, not " +
                                           std::string{row.value.typeName}});
    return false;
}

void checkKeys(Node const& table, std::span<std::string_view const> known,
               std::string_view otherwise, Faults& faults)
{
    for (Entry const& row : table.table) {
        if (std::ranges::find(known, row.key) == known.end()) {
            auto const meant = kiv::didYouMean(row.key, known);
            faults.push_back({row.place, "unknown key " + inQuotes(row.key) +
                                             (meant.empty() ? std::string{otherwise} : meant)});
        }
    }
}

void checkOrder(Node const& table, Faults& faults)
{
    Entry const* previous = nullptr;
    for (Entry const& row : table.table) {
        if (previous != nullptr && row.key < previous->key) {
            faults.push_back({row.place,
                              inQuotes(row.key) + " stands after " + inQuotes(previous->key) +
                                  "; rows stand in ascending byte order of their keys",
                              {{previous->place, inQuotes(previous->key) + " stands here"}}});
        }
        previous = &row;
    }
}

} // namespace kivgen
