#include "diagnostics/Clock.h"

#include <chrono>
#include <cstddef>

namespace kiv::diagnostics {

namespace {

/// Writes a number in decimal, with zeros before it.
char* put(char* to, unsigned number, std::size_t digits)
{
    for (std::size_t i = digits; i > 0; --i) {
        to[i - 1] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
    return to + digits;
}

char* put(char* to, char mark)
{
    *to = mark;
    return to + 1;
}

} // namespace

TimeText::TimeText()
{
    using namespace std::chrono;
    auto const now = floor<milliseconds>(system_clock::now());
    auto const day = floor<days>(now);
    year_month_day const date(day);
    hh_mm_ss const time(now - day);
    char* at = m_text.data();
    at = put(put(at, static_cast<unsigned>(static_cast<int>(date.year())), 4), '-');
    at = put(put(at, static_cast<unsigned>(date.month()), 2), '-');
    at = put(put(at, static_cast<unsigned>(date.day()), 2), 'T');
    at = put(put(at, static_cast<unsigned>(time.hours().count()), 2), ':');
    at = put(put(at, static_cast<unsigned>(time.minutes().count()), 2), ':');
    at = put(put(at, static_cast<unsigned>(time.seconds().count()), 2), '.');
    put(put(at, static_cast<unsigned>(time.subseconds().count()), 3), 'Z');
}

} // namespace kiv::diagnostics
