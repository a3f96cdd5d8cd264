#pragma once

#include "values/Value.h"

namespace zel::dataformats::data {

/// A number of double precision; infinities and NaN are allowed.
class ZEL_PLATFORM_API Float final : public Value {
public:
    explicit Float(double value) noexcept;
    ~Float() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Float* clone() const override;

    /// The number.
    double get() const noexcept;

private:
    double m_value;
};

} // namespace zel::dataformats::data
