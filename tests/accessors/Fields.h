#pragma once

#include "tests/model/Tree.h"

#include "frame/ExternalResourceObject.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

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

/// The value form of an element, in full; `Nothing` for null.
Tree fullOf(IObjectBase const* element);

/// One field of an element class.
class Field {
public:
    explicit Field(std::string_view ofKey) : key(ofKey) {}
    virtual ~Field() = default;
    Field(Field const&) = delete;
    Field& operator=(Field const&) = delete;

    /// Whether its presence accessors say that it is set. A polymorphic field must say so by the
    /// one that belongs to the class of what it holds, and by no other.
    virtual bool isSet(IObjectBase const& owner) const = 0;
    /// What its getter gives, in the value form.
    virtual Tree get(IObjectBase const& owner) const = 0;
    /// Sets it to the sample of that number, or adds that. Frees an element that is replaced. False
    /// if the getter then gives another element.
    virtual bool put(IObjectBase& owner, int number) const = 0;
    /// What the sample of that number is in the value form; what an unset field is.
    virtual Tree sample(int number) const = 0;
    virtual Tree unset() const = 0;

    std::string_view key;
    bool isList = false;
};

using Presence = bool (IObjectBase::*)() const;

/// A member function whose type was put aside; only one of its own type may be called through it.
using Erased = void (IObjectBase::*)();

/// The name that a sample element of that number has.
std::string sampleName(int number);

// What differs between the classes of nested elements.

template <typename T>
IObjectBase* held(IObjectBase const& owner, Erased get)
{
    return (owner.*reinterpret_cast<T* (IObjectBase::*)() const>(get))();
}

template <typename T>
std::vector<IObjectBase*> allHeld(IObjectBase const& owner, Erased get)
{
    std::vector<IObjectBase*> all;
    for (T* const each :
         (owner.*reinterpret_cast<std::vector<T*> (IObjectBase::*)() const>(get))()) {
        all.push_back(each);
    }
    return all;
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

std::unique_ptr<Field> listField(std::string_view key,
                                 std::vector<IObjectBase*> (*held)(IObjectBase const&, Erased),
                                 Erased get, Target const& target);

/// An element field, which has one target, or a polymorphic one.
std::unique_ptr<Field> elementField(std::string_view key,
                                    IObjectBase* (*held)(IObjectBase const&, Erased), Erased get,
                                    std::vector<Target> targets);

// The plain kinds.
std::unique_ptr<Field> plainField(std::string_view key,
                                  std::string const& (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(std::string const&), Presence presence);
std::unique_ptr<Field> plainField(std::string_view key, int (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(int), Presence presence);
std::unique_ptr<Field> plainField(std::string_view key, double (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(double), Presence presence);
std::unique_ptr<Field> plainField(std::string_view key, bool (IObjectBase::*get)() const,
                                  void (IObjectBase::*set)(bool), Presence presence);
std::unique_ptr<Field> plainField(std::string_view key,
                                  std::vector<std::string> (IObjectBase::*get)() const,
                                  void (IObjectBase::*add)(std::string const&), Presence presence);
std::unique_ptr<Field> plainField(std::string_view key,
                                  std::vector<int> (IObjectBase::*get)() const,
                                  void (IObjectBase::*add)(int), Presence presence);

/// The fields of one element class, and how to make an element. Each operation takes the accessors
/// of a field of one kind; what has another type than it says does not compile.
struct ElementFields {
    char const* name;
    std::unique_ptr<IObjectBase> (*make)();
    /// Uses all operations of the resource class; what went wrong, or null.
    char const* (*faultOfResource)();
    std::vector<std::unique_ptr<Field>> fields;

    template <typename E>
    void text(std::string_view key, std::string const& (E::*get)() const,
              void (E::*set)(std::string const&), bool (E::*presence)() const)
    {
        fields.push_back(plainField(key,
                                    static_cast<std::string const& (IObjectBase::*)() const>(get),
                                    static_cast<void (IObjectBase::*)(std::string const&)>(set),
                                    static_cast<Presence>(presence)));
    }

    template <typename E>
    void integer(std::string_view key, int (E::*get)() const, void (E::*set)(int),
                 bool (E::*presence)() const)
    {
        fields.push_back(plainField(key, static_cast<int (IObjectBase::*)() const>(get),
                                    static_cast<void (IObjectBase::*)(int)>(set),
                                    static_cast<Presence>(presence)));
    }

    template <typename E>
    void real(std::string_view key, double (E::*get)() const, void (E::*set)(double),
              bool (E::*presence)() const)
    {
        fields.push_back(plainField(key, static_cast<double (IObjectBase::*)() const>(get),
                                    static_cast<void (IObjectBase::*)(double)>(set),
                                    static_cast<Presence>(presence)));
    }

    template <typename E>
    void flag(std::string_view key, bool (E::*get)() const, void (E::*set)(bool),
              bool (E::*presence)() const)
    {
        fields.push_back(plainField(key, static_cast<bool (IObjectBase::*)() const>(get),
                                    static_cast<void (IObjectBase::*)(bool)>(set),
                                    static_cast<Presence>(presence)));
    }

    template <typename E>
    void texts(std::string_view key, std::vector<std::string> (E::*get)() const,
               void (E::*add)(std::string const&), bool (E::*presence)() const)
    {
        fields.push_back(
            plainField(key, static_cast<std::vector<std::string> (IObjectBase::*)() const>(get),
                       static_cast<void (IObjectBase::*)(std::string const&)>(add),
                       static_cast<Presence>(presence)));
    }

    template <typename E>
    void integers(std::string_view key, std::vector<int> (E::*get)() const, void (E::*add)(int),
                  bool (E::*presence)() const)
    {
        fields.push_back(plainField(
            key, static_cast<std::vector<int> (IObjectBase::*)() const>(get),
            static_cast<void (IObjectBase::*)(int)>(add), static_cast<Presence>(presence)));
    }

    template <typename T, typename E>
    void element(std::string_view key, T* (E::*get)() const, void (E::*set)(std::unique_ptr<T>),
                 bool (E::*presence)() const)
    {
        fields.push_back(
            elementField(key, &held<T>, reinterpret_cast<Erased>(get), {target<T>(set, presence)}));
    }

    template <typename T, typename E>
    void elements(std::string_view key, std::vector<T*> (E::*get)() const,
                  void (E::*add)(std::unique_ptr<T>), bool (E::*presence)() const)
    {
        fields.push_back(
            listField(key, &allHeld<T>, reinterpret_cast<Erased>(get), target<T>(add, presence)));
    }

    template <typename E>
    void polymorphic(std::string_view key, IObjectBase* (E::*get)() const,
                     std::vector<Target> targets)
    {
        fields.push_back(elementField(key, &held<IObjectBase>, reinterpret_cast<Erased>(get),
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
