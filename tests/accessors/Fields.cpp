#include "tests/accessors/Fields.h"

#include "tests/model/Samples.h"

#include <algorithm>
#include <cstddef>

namespace accessors {

std::string sampleName(int number)
{
    return "sample " + std::to_string(number);
}

Field nestedField(std::string_view key, bool isList, Held held, Erased get,
                  std::vector<Target> targets)
{
    auto const isSet = [targets](IObjectBase const& owner) {
        return std::ranges::any_of(targets,
                                   [&](Target const& each) { return (owner.*each.presence)(); });
    };
    auto const got = [=](IObjectBase const& owner) {
        Tree::List list;
        for (IObjectBase const* const each : held(owner, get)) {
            list.push_back(samples::fullOf(*each));
        }
        return isList ? Tree{list} : list.front();
    };
    // The number selects the target too.
    auto const put = [=](IObjectBase& owner, int number) {
        std::unique_ptr<IObjectBase> const replaced(isList ? nullptr : held(owner, get).front());
        Target const& chosen = targets[static_cast<std::size_t>(number) % targets.size()];
        IObjectBase const* const given = chosen.give(owner, chosen.accept, number);
        return held(owner, get).back() == given &&
               std::ranges::all_of(targets, [&](Target const& each) {
                   return (owner.*each.presence)() == (&each == &chosen);
               });
    };
    return {key,   isList,
            isSet, got,
            put,   [](int number) { return Tree{Tree::Map{{"name", {sampleName(number)}}}}; }};
}

} // namespace accessors
