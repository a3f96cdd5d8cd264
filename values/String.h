#pragma once

#include "values/Value.h"

#include <string>

namespace zel::dataformats::data {

/// A text. It may hold zeros; nothing looks at its encoding.
class ZEL_PLATFORM_API String final : public Value {
public:
    /// Keeps its own copy of `text`. Throws `std::bad_alloc` when memory runs out.
    explicit String(std::string const& text);
    ~String() override;

    void accept(ConstVisitor& visitor) const override;
    char const* typeName() const noexcept override;
    std::int32_t getType() const override;
    String* clone() const override;

    /// The text, for as long as the value lives.
    std::string const& get() const noexcept;

private:
    std::string m_text;
};

} // namespace zel::dataformats::data
