#pragma once

#include "values/PtrVector.h"
#include "values/Value.h"

namespace zel::dataformats::data {

/// A sequence of values, which it owns.
class ZEL_PLATFORM_API Array final : public Value {
public:
    /// An empty array.
    Array() noexcept;
    ~Array() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Array* clone() const override;

    /// Appends `value`, which may be null, and owns it from the call on: if the array cannot grow,
    /// `value` is freed and `std::bad_alloc` passes through, with the array as it was.
    void pushNew(Value* value);

    /// The entries, for as long as the array lives.
    zel::common::types::PtrVector<Value>& get() noexcept;

private:
    zel::common::types::PtrVector<Value> m_entries;
};

} // namespace zel::dataformats::data
