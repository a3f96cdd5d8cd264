#pragma once

#include "frame/IObjectBase.h"

#include <memory>
#include <utility>
#include <vector>

namespace zel::kiv::common::internal {

/// Frees what a field of an element holds and leaves it null.
template <typename Element>
void release(Element*& held)
{
    // With the deletion last, it is a jump and takes no stack of its own at any level of nesting.
    delete std::exchange(held, nullptr);
}

/// Frees the entries of a list field, which may be null.
template <typename Element>
void releaseAll(std::vector<Element*> const& held)
{
    for (Element* const element : held) {
        delete element;
    }
}

/// Appends an element to a list field. The list grows before the element changes hands: if it
/// cannot grow, the element still belongs to the caller.
template <typename Element>
void append(std::vector<Element*>& held, std::unique_ptr<Element> element)
{
    held.push_back(element.get());
    static_cast<void>(element.release());
}

} // namespace zel::kiv::common::internal
