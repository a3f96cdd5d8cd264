#include "tests/accessors/Fields.h"

#include "values/values.h"

#include <cstddef>

namespace accessors {

namespace {

Tree treeOf(std::string const& text)
{
    return {text};
}

Tree treeOf(int number)
{
    return {number};
}

Tree treeOf(double number)
{
    return {number};
}

Tree treeOf(bool flag)
{
    return {flag};
}

template <typename Entry>
Tree treeOf(std::vector<Entry> const& entries)
{
    Tree::List list;
    for (Entry const& entry : entries) {
        list.push_back({entry});
    }
    return {list};
}

template <typename Plain>
Plain plainSample(int number)
{
    return static_cast<Plain>(number);
}

template <>
std::string plainSample<std::string>(int number)
{
    return sampleName(number);
}

template <>
double plainSample<double>(int number)
{
    return number + 0.25;
}

/// A field of a plain kind: `Got` is what the getter gives, `Given` what the setter takes.
template <typename Got, typename Given>
class PlainField : public Field {
public:
    using Get = Got (IObjectBase::*)() const;
    using Set = void (IObjectBase::*)(Given);
    using Single = std::remove_cvref_t<Given>;
    using Stored = std::remove_cvref_t<Got>;

    PlainField(std::string_view ofKey, Get getter, Set set, Presence presence)
        : Field(ofKey), m_get(getter), m_set(set), m_presence(presence)
    {
        isList = !std::is_same_v<Single, Stored>;
    }

    bool isSet(IObjectBase const& owner) const override { return (owner.*m_presence)(); }
    Tree get(IObjectBase const& owner) const override { return treeOf((owner.*m_get)()); }
    bool put(IObjectBase& owner, int number) const override
    {
        (owner.*m_set)(plainSample<Single>(number));
        return true;
    }
    Tree sample(int number) const override { return treeOf(plainSample<Single>(number)); }
    Tree unset() const override { return treeOf(Stored()); }

private:
    Get m_get;
    Set m_set;
    Presence m_presence;
};

template <typename Got, typename Given>
std::unique_ptr<Field> make(std::string_view key, Got (IObjectBase::*get)() const,
                            void (IObjectBase::*set)(Given), Presence presence)
{
    return std::make_unique<PlainField<Got, Given>>(key, get, set, presence);
}

/// What an element that was made as a sample is in the value form.
Tree sampleElement(int number)
{
    return {Tree::Map{{"name", {sampleName(number)}}}};
}

class ListField : public Field {
public:
    using Held = std::vector<IObjectBase*> (*)(IObjectBase const&, Erased);

    ListField(std::string_view ofKey, Held held, Erased getter, Target const& target)
        : Field(ofKey), m_held(held), m_get(getter), m_target(target)
    {
        isList = true;
    }

    bool isSet(IObjectBase const& owner) const override { return (owner.*m_target.presence)(); }
    Tree get(IObjectBase const& owner) const override
    {
        Tree::List list;
        for (IObjectBase const* const each : m_held(owner, m_get)) {
            list.push_back(fullOf(each));
        }
        return {list};
    }
    bool put(IObjectBase& owner, int number) const override
    {
        return m_target.give(owner, m_target.accept, number) == m_held(owner, m_get).back();
    }
    Tree sample(int number) const override { return sampleElement(number); }
    Tree unset() const override { return {Tree::List{}}; }

private:
    Held m_held;
    Erased m_get;
    Target m_target;
};

class ElementField : public Field {
public:
    using Held = IObjectBase* (*)(IObjectBase const&, Erased);

    ElementField(std::string_view ofKey, Held held, Erased getter, std::vector<Target> targets)
        : Field(ofKey), m_held(held), m_get(getter), m_targets(std::move(targets))
    {
    }

    bool isSet(IObjectBase const& owner) const override
    {
        bool result = false;
        for (Target const& each : m_targets) {
            result = result || (owner.*each.presence)();
        }
        return result;
    }

    Tree get(IObjectBase const& owner) const override { return fullOf(m_held(owner, m_get)); }

    /// The number selects the target too.
    bool put(IObjectBase& owner, int number) const override
    {
        std::unique_ptr<IObjectBase> const replaced(m_held(owner, m_get));
        std::size_t const chosen = static_cast<std::size_t>(number) % m_targets.size();
        Target const& target = m_targets[chosen];
        if (target.give(owner, target.accept, number) != m_held(owner, m_get)) {
            return false;
        }
        for (std::size_t place = 0; place < m_targets.size(); ++place) {
            if ((owner.*m_targets[place].presence)() != (place == chosen)) {
                return false;
            }
        }
        return true;
    }

    Tree sample(int number) const override { return sampleElement(number); }
    Tree unset() const override { return {Tree::Nothing{}}; }

private:
    Held m_held;
    Erased m_get;
    std::vector<Target> m_targets;
};

} // namespace

Tree fullOf(IObjectBase const* element)
{
    if (element == nullptr) {
        return {Tree::Nothing{}};
    }
    return model::treeOf(element->serialize(zel::kiv::common::SerializationType::Full).get());
}

std::string sampleName(int number)
{
    return "sample " + std::to_string(number);
}

std::unique_ptr<Field> listField(std::string_view key, ListField::Held held, Erased get,
                                 Target const& target)
{
    return std::make_unique<ListField>(key, held, get, target);
}

std::unique_ptr<Field> elementField(std::string_view key, ElementField::Held held, Erased get,
                                    std::vector<Target> targets)
{
    return std::make_unique<ElementField>(key, held, get, std::move(targets));
}

std::unique_ptr<Field> plainField(std::string_view key,
                                  std::string const& (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(std::string const&), Presence presence)
{
    return make(key, get, set, presence);
}

std::unique_ptr<Field> plainField(std::string_view key, int (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(int), Presence presence)
{
    return make(key, get, set, presence);
}

std::unique_ptr<Field> plainField(std::string_view key, double (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(double), Presence presence)
{
    return make(key, get, set, presence);
}

std::unique_ptr<Field> plainField(std::string_view key, bool (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(bool), Presence presence)
{
    return make(key, get, set, presence);
}

std::unique_ptr<Field> plainField(std::string_view key,
                                  std::vector<std::string> (IObjectBase::*get)() const,
                                  void (IObjectBase::*add)(std::string const&), Presence presence)
{
    return make(key, get, add, presence);
}

std::unique_ptr<Field> plainField(std::string_view key,
                                  std::vector<int> (IObjectBase::*get)() const,
                                  void (IObjectBase::*add)(int), Presence presence)
{
    return make(key, get, add, presence);
}

} // namespace accessors
