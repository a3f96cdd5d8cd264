#include "Readings.h"
#include "Visits.h"

void look(check::Report& report)
{
    check::Null const value;
    check::readings(report, "a Null", &value);
    report.open("visit of a Null calls", [&] { return check::callsFor(&value); });
}
