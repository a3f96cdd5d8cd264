#include "tools/compat/Carrying.h"
#include "tools/compat/Handlers.h"

#include <algorithm>
#include <vector>

namespace compat {
namespace {

using zel::kiv::catalogue::isList;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::wordOf;

bool isChoice(FieldPair const& pair)
{
    return pair.isKept() && pair.was->kind == Kind::Polymorphic &&
           pair.is->kind == Kind::Polymorphic;
}

bool hasLastResort(Field const& field)
{
    return std::ranges::any_of(field.targets, &Target::isExternal);
}

std::string nameOf(Target const& target)
{
    return target.isExternal() ? "external" : target.service + "::" + target.resource;
}

std::string listed(std::vector<Target> const& targets)
{
    std::string text;
    for (Target const& target : targets) {
        text += (text.empty() ? "`" : ", `") + nameOf(target) + "`";
    }
    return text;
}

/// The field's kind as definitions tell it: `element radio::Stations`.
std::string kindOf(Field const& field)
{
    bool const isPlain =
        field.targets.empty() || (field.targets.size() == 1 && hasLastResort(field));
    return "`" + std::string(wordOf(field.kind)) + "`" +
           (isPlain ? "" : " of " + listed(field.targets));
}

Found changedKind(FieldPair const& pair)
{
    return kindOf(*pair.was) + " is now " + kindOf(*pair.is) + "; an old value is read as " +
           readAs(*pair.was, *pair.is);
}

bool isOfNewKind(FieldPair const& pair)
{
    return pair.isKept() && pair.was->kind != pair.is->kind;
}

/// Whether a single field that has one target now has another.
bool isOfNewTarget(Comparison const& comparison, FieldPair const& pair)
{
    return pair.isKept() && pair.was->kind == pair.is->kind && pair.was->targets.size() == 1 &&
           !comparison.areSame(pair.was->targets.front(), pair.is->targets.front());
}

Found changedTarget(FieldPair const& pair)
{
    return listed(pair.was->targets) + " is now " + listed(pair.is->targets);
}

/// The targets beside the last resort that only the new side has.
std::vector<Target> addedTo(Comparison const& comparison, FieldPair const& pair)
{
    auto targets = pair.is->targets;
    std::erase_if(targets, [&](Target const& is) {
        return is.isExternal() || std::ranges::any_of(pair.was->targets, [&](Target const& was) {
                   return comparison.areSame(was, is);
               });
    });
    return targets;
}

/// The targets beside the last resort that only the old side has.
std::vector<Target> removedFrom(Comparison const& comparison, FieldPair const& pair)
{
    auto targets = pair.was->targets;
    std::erase_if(targets, [&](Target const& was) {
        return was.isExternal() || std::ranges::any_of(pair.is->targets, [&](Target const& is) {
                   return comparison.areSame(was, is);
               });
    });
    return targets;
}

/// Whether the last resort of the new side loses nothing of that target of the old side.
bool isLeftToLastResort(Comparison const& comparison, FieldPair const& pair, Target const& target)
{
    return hasLastResort(*pair.is) &&
           carries(comparison, comparison.was().at(target), comparison.is().external);
}

Found listedIfAny(std::vector<Target> const& targets)
{
    return targets.empty() ? std::nullopt : Found(listed(targets));
}

} // namespace

Found fieldAdded(Comparison const& /*comparison*/, FieldPair const& pair)
{
    return pair.isAdded() ? Found(kindOf(*pair.is)) : std::nullopt;
}

Found fieldRemoved(Comparison const& /*comparison*/, FieldPair const& pair)
{
    return pair.isRemoved() ? Found(kindOf(*pair.was)) : std::nullopt;
}

Found fieldRenamed(Comparison const& /*comparison*/, FieldPair const& pair)
{
    bool const isRenamed = pair.isKept() && pair.was->key != pair.is->key;
    return isRenamed ? Found("`" + pair.was->key + "` is now `" + pair.is->key + "`")
                     : std::nullopt;
}

Found listMadeSingle(Comparison const& /*comparison*/, FieldPair const& pair)
{
    bool const isSingleNow = isOfNewKind(pair) && isList(pair.was->kind) && !isList(pair.is->kind);
    return isSingleNow ? changedKind(pair) : std::nullopt;
}

Found singleMadeList(Comparison const& /*comparison*/, FieldPair const& pair)
{
    bool const isListNow = isOfNewKind(pair) && !isList(pair.was->kind) && isList(pair.is->kind);
    return isListNow ? changedKind(pair) : std::nullopt;
}

Found kindChanged(Comparison const& comparison, FieldPair const& pair)
{
    bool const isLost = isOfNewKind(pair) && isList(pair.was->kind) == isList(pair.is->kind) &&
                        !carries(comparison, *pair.was, *pair.is);
    return isLost ? changedKind(pair) : std::nullopt;
}

Found kindChangedAlike(Comparison const& comparison, FieldPair const& pair)
{
    bool const isCarried = isOfNewKind(pair) && carries(comparison, *pair.was, *pair.is);
    return isCarried ? Found(kindOf(*pair.was) + " is now " + kindOf(*pair.is)) : std::nullopt;
}

Found targetChanged(Comparison const& comparison, FieldPair const& pair)
{
    bool const isLost =
        isOfNewTarget(comparison, pair) && !carries(comparison, *pair.was, *pair.is);
    return isLost ? changedTarget(pair) : std::nullopt;
}

Found targetChangedAlike(Comparison const& comparison, FieldPair const& pair)
{
    bool const isCarried =
        isOfNewTarget(comparison, pair) && carries(comparison, *pair.was, *pair.is);
    return isCarried ? changedTarget(pair) : std::nullopt;
}

Found choiceAdded(Comparison const& comparison, FieldPair const& pair)
{
    bool const isFree = isChoice(pair) && !hasLastResort(*pair.was);
    return isFree ? listedIfAny(addedTo(comparison, pair)) : std::nullopt;
}

Found choiceAddedToLastResort(Comparison const& comparison, FieldPair const& pair)
{
    bool const isTaken = isChoice(pair) && hasLastResort(*pair.was);
    return isTaken ? listedIfAny(addedTo(comparison, pair)) : std::nullopt;
}

Found choiceRemoved(Comparison const& comparison, FieldPair const& pair)
{
    if (!isChoice(pair)) {
        return std::nullopt;
    }
    auto targets = removedFrom(comparison, pair);
    std::erase_if(targets, [&](Target const& target) {
        return isLeftToLastResort(comparison, pair, target);
    });
    return listedIfAny(targets);
}

Found choiceRemovedAlike(Comparison const& comparison, FieldPair const& pair)
{
    if (!isChoice(pair)) {
        return std::nullopt;
    }
    auto targets = removedFrom(comparison, pair);
    std::erase_if(targets, [&](Target const& target) {
        return !isLeftToLastResort(comparison, pair, target);
    });
    return listedIfAny(targets);
}

Found choicesReordered(Comparison const& comparison, FieldPair const& pair)
{
    bool const areTheSame = isChoice(pair) && pair.was->targets.size() == pair.is->targets.size() &&
                            addedTo(comparison, pair).empty() &&
                            hasLastResort(*pair.was) == hasLastResort(*pair.is);
    bool const isOther = areTheSame && !std::ranges::equal(pair.was->targets, pair.is->targets,
                                                           [&](auto const& was, auto const& is) {
                                                               return comparison.areSame(was, is);
                                                           });
    return isOther ? Found(listed(pair.is->targets)) : std::nullopt;
}

Found lastResortAdded(Comparison const& /*comparison*/, FieldPair const& pair)
{
    bool const isNew = isChoice(pair) && !hasLastResort(*pair.was) && hasLastResort(*pair.is);
    return isNew ? Found("") : std::nullopt;
}

Found lastResortRemoved(Comparison const& /*comparison*/, FieldPair const& pair)
{
    bool const isGone = isChoice(pair) && hasLastResort(*pair.was) && !hasLastResort(*pair.is);
    return isGone ? Found("") : std::nullopt;
}

Found fieldReworded(Comparison const& /*comparison*/, FieldPair const& pair)
{
    return pair.isKept() && pair.was->note != pair.is->note ? Found("") : std::nullopt;
}

} // namespace compat
