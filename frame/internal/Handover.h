#pragma once

#include "frame/IObjectBase.h"

#include <cstddef>
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

/// The handover to a setter or adder that is not overloaded. It is a function since a constant
/// would lie in memory, with addresses in it that the start of a program has to fill in.
template <typename Base, auto accept>
struct HandoverTo;

template <typename Base, typename Owner, typename Element,
          void (Owner::*accept)(std::unique_ptr<Element>)>
struct HandoverTo<Base, accept> {
    [[gnu::always_inline]] static constexpr Handover<Base> get()
    {
        return {make<Element>, give<Base, Owner, Element, accept>};
    }
};

/// One class that a polymorphic field may hold, and the service and resource that its uris name.
struct Target {
    std::string_view resource;
    Handover<IObjectBase> handover;
};

/// Several of them, in the order in which they are tried.
struct Targets {
    template <std::size_t size>
    [[gnu::always_inline]] constexpr Targets(Target const (&rows)[size])
        : first(rows), last(rows + size)
    {
    }

    [[nodiscard]] Target const* begin() const { return first; }
    [[nodiscard]] Target const* end() const { return last; }

    Target const* first;
    Target const* last;
};

} // namespace zel::kiv::common::internal
