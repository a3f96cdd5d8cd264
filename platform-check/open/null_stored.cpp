#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.open("an entry of null in an Array is", [] {
        Array array;
        array.pushNew(nullptr);
        auto& entries = array.get();
        return entries.begin() == entries.end() ? "left out"
               : *entries.begin() == nullptr    ? "a null pointer"
                                                : "a value";
    });
    report.open("null stored under a key of an Object is", [] {
        Object object;
        object.setNew("a", nullptr);
        auto const found = object.get().find("a");
        return found == object.get().end() ? "left out"
               : found->second == nullptr  ? "a null pointer"
                                           : "a value";
    });
}
