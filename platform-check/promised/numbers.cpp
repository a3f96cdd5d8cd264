#include "Report.h"
#include "Visits.h"

#include <limits>

using namespace check;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr double largest = std::numeric_limits<double>::max();

template <typename Plain, typename Wrapped>
Plain visited(Wrapped const& value, Plain Visits::*member)
{
    Visits visits;
    visits.visit(&value);
    return visits.*member;
}

} // namespace

void look(Report& report)
{
    report.promised("visitInteger is given the least int", shown(least),
                    [] { return visited(Integer(least), &Visits::integer); });
    report.promised("visitFloat is given the largest double", shown(largest),
                    [] { return visited(Float(largest), &Visits::real); });
    report.promised("visitBoolean is given true", "true",
                    [] { return visited(Boolean(true), &Visits::boolean); });
    report.promised("Ref::asInteger of an Integer", shown(least), [] {
        Integer const value(least);
        return Ref(&value).asInteger();
    });
    report.promised("Ref::asFloat of a Float", shown(largest), [] {
        Float const value(largest);
        return Ref(&value).asFloat();
    });
    report.promised("Ref::asBoolean of a Boolean", "true", [] {
        Boolean const value(true);
        return Ref(&value).asBoolean();
    });
}
