#pragma once

#include "tools/compat/Comparison.h"

#include <optional>
#include <string>

/// What the rules look for; see `Rules.cpp` for what each is called and what it breaks.
namespace compat {

using Found = std::optional<std::string>;

Found serviceAdded(Comparison const& comparison, ServicePair const& pair);
Found serviceRemoved(Comparison const& comparison, ServicePair const& pair);
Found serviceRenamed(Comparison const& comparison, ServicePair const& pair);
Found serviceReworded(Comparison const& comparison, ServicePair const& pair);

Found resourceAdded(Comparison const& comparison, ResourcePair const& pair);
Found resourceRemoved(Comparison const& comparison, ResourcePair const& pair);
Found resourceMoved(Comparison const& comparison, ResourcePair const& pair);
Found resourceRenamed(Comparison const& comparison, ResourcePair const& pair);
Found elementRenamed(Comparison const& comparison, ResourcePair const& pair);
Found resourceKeyChanged(Comparison const& comparison, ResourcePair const& pair);
Found elementKeyChanged(Comparison const& comparison, ResourcePair const& pair);
Found resourceReworded(Comparison const& comparison, ResourcePair const& pair);

Found fieldAdded(Comparison const& comparison, FieldPair const& pair);
Found fieldRemoved(Comparison const& comparison, FieldPair const& pair);
Found fieldRenamed(Comparison const& comparison, FieldPair const& pair);
Found listMadeSingle(Comparison const& comparison, FieldPair const& pair);
Found singleMadeList(Comparison const& comparison, FieldPair const& pair);
Found kindChanged(Comparison const& comparison, FieldPair const& pair);
Found kindChangedAlike(Comparison const& comparison, FieldPair const& pair);
Found targetChanged(Comparison const& comparison, FieldPair const& pair);
Found targetChangedAlike(Comparison const& comparison, FieldPair const& pair);
Found choiceAdded(Comparison const& comparison, FieldPair const& pair);
Found choiceAddedToLastResort(Comparison const& comparison, FieldPair const& pair);
Found choiceRemoved(Comparison const& comparison, FieldPair const& pair);
Found choiceRemovedAlike(Comparison const& comparison, FieldPair const& pair);
Found choicesReordered(Comparison const& comparison, FieldPair const& pair);
Found lastResortAdded(Comparison const& comparison, FieldPair const& pair);
Found lastResortRemoved(Comparison const& comparison, FieldPair const& pair);
Found fieldReworded(Comparison const& comparison, FieldPair const& pair);

} // namespace compat
