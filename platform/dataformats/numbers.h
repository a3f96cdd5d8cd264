#pragma once

#include <string>
#include <string_view>

namespace zel::dataformats::data {

/// The shortest text that reads back as the same number. Throws `std::bad_alloc`.
std::string textOf(int number);

/// Likewise; "inf", "-inf" or "nan" where there are no digits.
std::string textOf(double number);

/// The number that all of `text` reads as in decimal, held within the finite range, or 0 if it is
/// none. An optional minus, digits with an optional point among them and an optional exponent make
/// a number.
double numberIn(std::string_view text) noexcept;

/// `number` cut toward zero and held within the range; 0 for NaN.
int toInt(double number) noexcept;

} // namespace zel::dataformats::data
