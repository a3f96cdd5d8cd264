#pragma once

#include "values/BufferDescriptor.h"
#include "values/Value.h"

#include <string>

namespace zel::dataformats::data {

/// A run of bytes that is no text.
class ZEL_PLATFORM_API Blob final : public Value {
public:
    /// Keeps its own copy of `bytes`. Throws `std::bad_alloc` when memory runs out.
    explicit Blob(zel::common::types::BufferDescriptor<char const> bytes);
    ~Blob() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    Blob* clone() const override;

    /// The bytes, for as long as the value lives.
    zel::common::types::BufferDescriptor<char const> get() const noexcept;

private:
    std::string m_bytes;
};

} // namespace zel::dataformats::data
