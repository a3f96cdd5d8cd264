#include "Readings.h"
#include "Visits.h"

void look(check::Report& report)
{
    check::Blob const value(check::types::BufferDescriptor<char const>{"7", 1});
    check::readings(report, "a Blob", &value);
    report.open("visit of a Blob calls", [&] { return check::callsFor(&value); });
}
