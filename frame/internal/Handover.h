#pragma once

#include "frame/IObjectBase.h"

#include <memory>
#include <string_view>
#include <utility>

namespace zel::kiv::common::internal {

/// How an element comes to its owner: it is made, and when it has been read it is given to a setter
/// or adder. All that lies between is compiled once, and a level of nesting takes little stack. The
/// plain pointers own what they point at.
template <typename Base>
struct Handover {
    IObjectBase* (*make)();
    void (*give)(Base& owner, IObjectBase* element);
};

/// One class that a polymorphic field may hold, and the service and resource that its uris name.
struct Target {
    std::string_view resource;
    Handover<IObjectBase> handover;
};

template <typename Element>
IObjectBase* make()
{
    return new Element;
}

template <typename Base, typename Owner, typename Element,
          void (Owner::*accept)(std::unique_ptr<Element>)>
void give(Base& owner, IObjectBase* element)
{
    std::unique_ptr<Element> owned(static_cast<Element*>(element));
    (static_cast<Owner&>(owner).*accept)(std::move(owned));
}

/// The handover of an element of one of several classes, each of which has its overload.
template <typename Owner, typename Element, void (Owner::*accept)(std::unique_ptr<Element>)>
constexpr Handover<IObjectBase> handover = {make<Element>,
                                            give<IObjectBase, Owner, Element, accept>};

/// The handover to a setter or adder that is not overloaded.
template <typename Base, auto accept>
struct HandoverTo;

template <typename Base, typename Owner, typename Element,
          void (Owner::*accept)(std::unique_ptr<Element>)>
struct HandoverTo<Base, accept> {
    static constexpr Handover<Base> value = {make<Element>, give<Base, Owner, Element, accept>};
};

} // namespace zel::kiv::common::internal
