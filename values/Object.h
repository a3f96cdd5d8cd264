#pragma once

#include "values/PtrMap.h"
#include "values/Value.h"

#include <string>

namespace zel::dataformats::data {

/// A map from keys to values, which it owns.
class ZEL_PLATFORM_API Object final : public Value {
public:
    /// An empty object, on the heap or, for a moment, on the stack.
    Object() noexcept;
    ~Object() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Object* clone() const override;

    /// Stores `value`, which may be null, under a copy of `key`, a text ended by a zero that must
    /// not be null. A value already stored under that key is freed. The object owns `value` from
    /// the call on: if memory runs out, `value` is freed and `std::bad_alloc` passes through, with
    /// the object as it was.
    void setNew(char const* key, Value* value);

    /// The entries, for as long as the object lives.
    zel::common::types::PtrMap<std::string, Value> const& get() const noexcept;

private:
    zel::common::types::PtrMap<std::string, Value> m_entries;
};

} // namespace zel::dataformats::data
