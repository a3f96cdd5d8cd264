#pragma once

#include "tests/model/Tree.h"

#include "frame/ExternalResourceObject.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

/// The accessors of all fields, each with exactly the type it must have, behind one face. They are
/// kept as members of the common base, so that little is compiled for each class.
namespace accessors {

using model::Tree;
using zel::kiv::common::IObjectBase;

/// One field of an element class.
struct Field {
    std::string_view key;
    bool isList;
    /// Whether a presence accessor of it says that it is set.
    std::function<bool(IObjectBase const& owner)> isSet;
    /// What its getter gives, in the value form.
    std::function<Tree(IObjectBase const& owner)> get;
    /// Sets it to the sample of that number, or adds that. Frees an element that is replaced. False
    /// if the getter then gives another element, or the presence accessors another class.
    std::function<bool(IObjectBase& owner, int number)> put;
    /// What the sample of that number is in the value form.
    Tree (*sample)(int number);
};

using Presence = bool (IObjectBase::*)() const;

/// The name that a sample element of that number has.
std::string sampleName(int number);

template <typename Plain>
Plain plainSample(int number)
{
    if constexpr (std::is_same_v<Plain, std::string>) {
        return sampleName(number);
    } else if constexpr (std::is_same_v<Plain, double>) {
        return number + 0.25;
    } else {
        return static_cast<Plain>(number);
    }
}

template <typename Plain>
Tree treeOf(Plain const& plain)
{
    return {plain};
}

template <typename Plain>
Tree treeOf(std::vector<Plain> const& plain)
{
    Tree::List list;
    for (Plain const& entry : plain) {
        list.push_back({entry});
    }
    return {list};
}

/// A field of a plain kind: `Got` is what the getter gives, `Given` what the setter takes.
template <typename Got, typename Given>
Field plainField(std::string_view key, Got (IObjectBase::*get)() const,
                 void (IObjectBase::*set)(Given), Presence presence)
{
    using Single = std::remove_cvref_t<Given>;
    return {key,
            !std::is_same_v<Single, std::remove_cvref_t<Got>>,
            [=](IObjectBase const& owner) { return (owner.*presence)(); },
            [=](IObjectBase const& owner) { return treeOf((owner.*get)()); },
            [=](IObjectBase& owner, int number) {
                (owner.*set)(plainSample<Single>(number));
                return true;
            },
            [](int number) { return Tree{plainSample<Single>(number)}; }};
}

/// A member function whose type was put aside; only one of its own type may be called through it.
using Erased = void (IObjectBase::*)();

// What differs between the classes of nested elements.

/// What a getter gives, which for a single element may be null.
using Held = std::vector<IObjectBase*> (*)(IObjectBase const& owner, Erased get);

template <typename T>
std::vector<IObjectBase*> held(IObjectBase const& owner, Erased get)
{
    return {(owner.*reinterpret_cast<T* (IObjectBase::*)() const>(get))()};
}

template <typename T>
std::vector<IObjectBase*> allHeld(IObjectBase const& owner, Erased get)
{
    auto const all = (owner.*reinterpret_cast<std::vector<T*> (IObjectBase::*)() const>(get))();
    return {all.begin(), all.end()};
}

/// Gives a new sample to the setter or adder.
template <typename T>
IObjectBase* give(IObjectBase& owner, Erased accept, int number)
{
    auto made = std::make_unique<T>();
    T* const raw = made.get();
    raw->setName(sampleName(number));
    (owner.*reinterpret_cast<void (IObjectBase::*)(std::unique_ptr<T>)>(accept))(std::move(made));
    return raw;
}

/// A class that a field can hold.
struct Target {
    IObjectBase* (*give)(IObjectBase& owner, Erased accept, int number);
    Erased accept;
    Presence presence;
};

template <typename T, typename E>
Target target(void (E::*accept)(std::unique_ptr<T>), bool (E::*presence)() const)
{
    return {&give<T>, reinterpret_cast<Erased>(accept), static_cast<Presence>(presence)};
}

/// A field of elements of one class, or of several that take turns by the number of the sample.
Field nestedField(std::string_view key, bool isList, Held held, Erased get,
                  std::vector<Target> targets);

/// The fields of one element class, and how to make an element. Each operation takes the accessors
/// of a field of one kind; what has another type than it says does not compile.
struct ElementFields {
    char const* name;
    std::unique_ptr<IObjectBase> (*make)();
    /// Uses all operations of the resource class; what went wrong, or null.
    char const* (*faultOfResource)();
    std::vector<Field> fields;

    template <typename Got, typename Given, typename E>
    void plain(std::string_view key, Got (E::*get)() const, void (E::*set)(Given),
               bool (E::*presence)() const)
    {
        fields.push_back(plainField(key, static_cast<Got (IObjectBase::*)() const>(get),
                                    static_cast<void (IObjectBase::*)(Given)>(set),
                                    static_cast<Presence>(presence)));
    }

    template <typename T, typename E>
    void element(std::string_view key, T* (E::*get)() const, void (E::*set)(std::unique_ptr<T>),
                 bool (E::*presence)() const)
    {
        fields.push_back(nestedField(key, false, &held<T>, reinterpret_cast<Erased>(get),
                                     {target<T>(set, presence)}));
    }

    template <typename T, typename E>
    void elements(std::string_view key, std::vector<T*> (E::*get)() const,
                  void (E::*add)(std::unique_ptr<T>), bool (E::*presence)() const)
    {
        fields.push_back(nestedField(key, true, &allHeld<T>, reinterpret_cast<Erased>(get),
                                     {target<T>(add, presence)}));
    }

    template <typename E>
    void polymorphic(std::string_view key, IObjectBase* (E::*get)() const,
                     std::vector<Target> targets)
    {
        fields.push_back(nestedField(key, false, &held<IObjectBase>, reinterpret_cast<Erased>(get),
                                     std::move(targets)));
    }
};

/// Collects two elements and takes one out again.
template <typename R, typename E>
char const* faultOfResource()
{
    using zel::kiv::common::IResourceBase;
    static_assert(std::is_base_of_v<IResourceBase, R> && std::is_base_of_v<IObjectBase, E>);
    static_assert(!std::is_copy_constructible_v<R> && !std::is_move_constructible_v<E>);
    std::vector<std::unique_ptr<E>> const& (R::*const getObjects)() const = &R::getObjects;
    void (R::*const addObject)(std::unique_ptr<E>) = &R::addObject;
    std::unique_ptr<E> (R::*const extractElement)(unsigned int) = &R::extractElement;
    std::size_t (R::*const getNumberOfElements)() const = &R::getNumberOfElements;
    R resource;
    auto made = std::make_unique<E>();
    E const* const raw = made.get();
    (resource.*addObject)(std::make_unique<E>());
    (resource.*addObject)(std::move(made));
    auto const& slots = (resource.*getObjects)();
    if (slots.size() != 2 || slots[1].get() != raw) {
        return "addObject does not append";
    }
    if ((resource.*extractElement)(2) != nullptr) {
        return "extractElement gives an element that is not there";
    }
    if ((resource.*extractElement)(1).get() != raw || slots[0] == nullptr || slots[1] != nullptr ||
        (resource.*extractElement)(1) != nullptr) {
        return "extractElement does not leave an empty slot behind";
    }
    return (resource.*getNumberOfElements)() == 2 ? nullptr : "a slot is gone";
}

template <typename R, typename E>
ElementFields fieldsOf()
{
    return {typeid(E).name(),
            []() -> std::unique_ptr<IObjectBase> { return std::make_unique<E>(); },
            &faultOfResource<R, E>,
            {}};
}

/// The fields of all element classes, in the order of the catalogue.
std::vector<ElementFields> allFields();

} // namespace accessors
