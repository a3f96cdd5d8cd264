#include "numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace zel::dataformats::data {
namespace {

template <typename Number>
std::string shortest(Number number)
{
    std::array<char, 32> text{};
    auto const result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

/// Whether a number outside the range of double is too large rather than too small. All it takes is
/// the sign of its exponent once the point stands behind the first digit, since such a number is
/// hundreds of places away from 1.
bool isTooLarge(std::string_view unsignedText) noexcept
{
    constexpr long many = 1'000'000'000;
    std::size_t const mark = unsignedText.find_first_of("eE");
    std::string_view const digits = unsignedText.substr(0, mark);

    long exponent = 0;
    if (mark != std::string_view::npos) {
        std::string_view text = unsignedText.substr(mark + 1);
        bool const negative = text.front() == '-';
        text.remove_prefix(negative || text.front() == '+' ? 1 : 0);
        auto const error = std::from_chars(text.data(), text.data() + text.size(), exponent).ec;
        exponent = error == std::errc{} ? std::min(exponent, many) : many;
        exponent = negative ? -exponent : exponent;
    }
    auto const point = static_cast<long>(std::min(digits.find('.'), digits.size()));
    auto const firstDigit = static_cast<long>(digits.find_first_not_of("0."));
    return point - firstDigit + exponent > 0;
}

} // namespace

std::string textOf(int number)
{
    return shortest(number);
}

std::string textOf(double number)
{
    return std::isnan(number) ? "nan" : shortest(number);
}

double numberIn(std::string_view text) noexcept
{
    bool const negative = text.starts_with('-');
    std::string_view const digits = text.substr(negative ? 1 : 0);
    // Keeps out what else would be read: a second minus, infinities and NaN.
    if (digits.empty() ||
        std::string_view{".0123456789"}.find(digits.front()) == std::string_view::npos) {
        return 0;
    }
    double number = 0;
    char const* const end = digits.data() + digits.size();
    auto const [rest, error] = std::from_chars(digits.data(), end, number);
    if (rest != end || error == std::errc::invalid_argument) {
        return 0;
    }
    if (error == std::errc::result_out_of_range) {
        number = isTooLarge(digits) ? std::numeric_limits<double>::max() : 0;
    }
    return negative ? -number : number;
}

int toInt(double number) noexcept
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<int>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

} // namespace zel::dataformats::data
