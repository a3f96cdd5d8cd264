#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.promised("an empty Array has no entries", "true", [] {
        Array array;
        return array.get().begin() == array.get().end();
    });
    report.promised("a thousand entries stand in the order of pushNew", "true", [] {
        Array array;
        std::vector<Value*> pushed;
        for (int i = 0; i < 1000; ++i) {
            pushed.push_back(new Integer(i));
            array.pushNew(pushed.back());
        }
        auto const& entries = array.get();
        return std::vector<Value*>(entries.begin(), entries.end()) == pushed;
    });
    report.promised("visitArray is given what get gives", "true", [] {
        Array array;
        Visits visits;
        visits.visit(&array);
        return visits.array == &array.get();
    });
}
