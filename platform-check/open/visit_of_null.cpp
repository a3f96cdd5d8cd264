#include "Report.h"
#include "Visits.h"

void look(check::Report& report)
{
    report.open("visit of a null pointer calls", [] { return check::callsFor(nullptr); });
}
