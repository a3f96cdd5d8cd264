#pragma once

#include "values/Value.h"

namespace zel::dataformats::data {

/// A signed number of 32 bits.
class ZEL_PLATFORM_API Integer final : public Value {
public:
    explicit Integer(int value) noexcept;
    ~Integer() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Integer* clone() const override;

    /// The number.
    int get() const noexcept;

private:
    int m_value;
};

} // namespace zel::dataformats::data
