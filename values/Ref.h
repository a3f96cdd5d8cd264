#pragma once

#include "values/PlatformApi.h"

#include <string>

namespace zel::dataformats::data {

class Value;

/// Reads a value as a plain type, whatever the type of the value. Made on the stack from a pointer
/// that may be null, asked once and dropped; it owns nothing.
///
/// It converts where a conversion is natural and otherwise gives the zero value (empty text, 0,
/// false), as for a null pointer. It never throws over a type, only `std::bad_alloc`. Nothing
/// depends on the locale.
///
/// A text is a number if all of it reads as one in decimal: an optional sign, digits with an
/// optional point among them, an optional exponent. Blanks, infinities and NaN make it no number.
class ZEL_PLATFORM_API Ref {
public:
    explicit Ref(Value const* value) noexcept : m_value{value} {}

    /// A `String` gives its text, a number the shortest text that reads back as the same number
    /// ("inf", "-inf" and "nan" where there are no digits), a `Boolean` "true" or "false".
    std::string asString() const;

    /// An `Integer` gives its number, a `Float` its number cut toward zero and held within the
    /// range of `int`, NaN 0, a `Boolean` 0 or 1, a text that is a number the same as that number.
    int asInteger() const;

    /// A `Boolean` gives itself, a number is true unless it is zero, the text "true" is true.
    bool asBoolean() const noexcept;

    /// A `Float` or `Integer` gives its number, a `Boolean` 0 or 1, a text that is a number that
    /// number, held within the finite range of `double`.
    double asFloat() const;

private:
    Value const* m_value;
};

} // namespace zel::dataformats::data
