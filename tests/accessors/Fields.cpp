#include "tests/accessors/Fields.h"

#include "tests/model/Samples.h"

#include <algorithm>
#include <cstddef>

namespace accessors {

namespace {

class NestedField : public Field {
public:
    NestedField(std::string_view ofKey, bool ofList, Held held, Erased getter,
                std::vector<Target> targets)
        : Field(ofKey, ofList), m_held(held), m_get(getter), m_targets(std::move(targets))
    {
    }

    bool isSet(IObjectBase const& owner) const override
    {
        return std::ranges::any_of(m_targets,
                                   [&](Target const& each) { return (owner.*each.presence)(); });
    }

    Tree get(IObjectBase const& owner) const override
    {
        Tree::List list;
        for (IObjectBase const* const each : m_held(owner, m_get)) {
            list.push_back(samples::fullOf(*each));
        }
        return isList ? Tree{list} : list.front();
    }

    /// The number selects the target too.
    bool put(IObjectBase& owner, int number) const override
    {
        std::unique_ptr<IObjectBase> const replaced(isList ? nullptr
                                                           : m_held(owner, m_get).front());
        Target const& chosen = m_targets[static_cast<std::size_t>(number) % m_targets.size()];
        IObjectBase const* const given = chosen.give(owner, chosen.accept, number);
        return m_held(owner, m_get).back() == given &&
               std::ranges::all_of(m_targets, [&](Target const& each) {
                   return (owner.*each.presence)() == (&each == &chosen);
               });
    }

    Tree sample(int number) const override { return {Tree::Map{{"name", {sampleName(number)}}}}; }

private:
    Held m_held;
    Erased m_get;
    std::vector<Target> m_targets;
};

} // namespace

std::string sampleName(int number)
{
    return "sample " + std::to_string(number);
}

std::unique_ptr<Field> nestedField(std::string_view key, bool isList, Held held, Erased get,
                                   std::vector<Target> targets)
{
    return std::make_unique<NestedField>(key, isList, held, get, std::move(targets));
}

} // namespace accessors
