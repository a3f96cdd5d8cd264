#include "Readings.h"
#include "Visits.h"

#include <limits>

using namespace check;

void look(Report& report)
{
    Object object;
    object.setNew("key", new Integer(7));
    Array array;
    array.pushNew(new Integer(7));
    readings(report, "an Object", &object);
    readings(report, "an Array", &array);
    for (char const* const text : {"", "text", "true", "True", "7", "-12.9", "25E-1", " 7", "7 ",
                                   "1,5", "0x10", "inf", "2147483648", "-1e309"}) {
        String const value(text);
        readings(report, "String " + quoted(text), &value);
    }
    for (int const number : {0, -7, std::numeric_limits<int>::min()}) {
        Integer const value(number);
        readings(report, "Integer " + std::to_string(number), &value);
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (double const number : {0.0, -2.75, 0.1, 2147483648.0, 1e300, -infinity,
                                std::numeric_limits<double>::quiet_NaN()}) {
        Float const value(number);
        readings(report, "Float " + shown(number), &value);
    }
    for (bool const flag : {false, true}) {
        Boolean const value(flag);
        readings(report, "Boolean " + shown(flag), &value);
    }
}
