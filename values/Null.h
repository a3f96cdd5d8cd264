#pragma once

#include "values/Value.h"

namespace zel::dataformats::data {

/// The value that says that there is none.
class ZEL_PLATFORM_API Null final : public Value {
public:
    Null() noexcept;
    ~Null() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Null* clone() const override;
};

} // namespace zel::dataformats::data
