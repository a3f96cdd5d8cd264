#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.open("type code of an Integer", [] { return int{Integer(7).getType()}; });
    report.open("type code of a Float", [] { return int{Float(0.5).getType()}; });
    report.open("type code of a Boolean", [] { return int{Boolean(true).getType()}; });
}
