#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.open("a key stored twice holds", [] {
        Object object;
        object.setNew("a", new Integer(1));
        object.setNew("a", new Integer(2));
        auto const* const held = static_cast<Value*>(object.get().find("a")->second);
        return Ref(held).asInteger() == 2 ? "the second value" : "the first value";
    });
}
