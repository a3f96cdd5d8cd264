#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.open("a map is walked in the order", [] {
        Object object;
        object.setNew("b", new Integer(1));
        object.setNew("B", new Integer(1));
        object.setNew("a", new Integer(1));
        std::string order;
        for (auto const& entry : object.get()) {
            order += entry.first;
        }
        return order;
    });
}
