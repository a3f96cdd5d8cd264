#pragma once

#include "values/Value.h"

namespace zel::dataformats::data {

/// A truth value.
class ZEL_PLATFORM_API Boolean final : public Value {
public:
    explicit Boolean(bool value) noexcept;
    ~Boolean() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Boolean* clone() const override;

    /// The truth value.
    bool get() const noexcept;

private:
    bool m_value;
};

} // namespace zel::dataformats::data
