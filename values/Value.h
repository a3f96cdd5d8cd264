#pragma once

#include "values/PlatformApi.h"
#include "values/ValueType.h"

#include <cstdint>

namespace zel::dataformats::data {

class ConstVisitor;

/// A node of a tree of generic values.
///
/// Every value is freed by deleting it through a `Value` pointer, which frees all that it holds.
/// Values are neither copied nor moved; `clone` is the one way to a second one. Any number of
/// threads may read a tree at the same time, as long as none changes it.
class ZEL_PLATFORM_API Value {
public:
    Value(Value const&) = delete;
    Value& operator=(Value const&) = delete;

    /// Frees the value and everything it owns. Uses stack in proportion to the depth of the tree.
    virtual ~Value();

    /// Calls the one `visit...` operation of `visitor` that fits the type of the value.
    /// What that operation throws passes through. `ConstVisitor::visit` is the way to call it.
    virtual void accept(ConstVisitor& visitor) const = 0;

    /// The name of the type as it stands in `ValueType`, for messages. Never null.
    virtual char const* typeName() const noexcept = 0;

    /// The type code, one of `ValueType`.
    virtual std::int32_t getType() const = 0;

    /// A new deep copy, owned by the caller. Throws `std::bad_alloc` when memory runs out, and then
    /// leaves nothing behind. Uses stack in proportion to the depth of the tree.
    virtual Value* clone() const = 0;

protected:
    Value() noexcept = default;
};

} // namespace zel::dataformats::data
