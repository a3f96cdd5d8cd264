#pragma once

#include "frame/IObjectBase.h"

#include <memory>
#include <utility>

namespace zel::kiv::common::internal {

// An element that was read is made and handed over through these two, so that all that lies between
// is compiled once, and so that a level of nesting takes little stack. The pointers own what they
// point at.
using Make = IObjectBase* (*)();
template <typename Base>
using Give = void (*)(Base& owner, IObjectBase* element);

/// Both of them, for the type of a setter or adder.
template <typename Setter>
struct Giver;

template <typename Owner, typename Element>
struct Giver<void (Owner::*)(std::unique_ptr<Element>)> {
    static IObjectBase* make() { return new Element; }

    template <typename Base, void (Owner::*setter)(std::unique_ptr<Element>)>
    static void give(Base& owner, IObjectBase* element)
    {
        std::unique_ptr<Element> owned(static_cast<Element*>(element));
        (static_cast<Owner&>(owner).*setter)(std::move(owned));
    }
};

} // namespace zel::kiv::common::internal
