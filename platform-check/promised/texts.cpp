#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.promised("String keeps its own copy, zero bytes and all", "true", [] {
        std::string text("long enough to be outside of the string, \0 \xC3\xA4", 44);
        std::string const same = text;
        String const value(text);
        text.assign(text.size(), 'x');
        return value.get() == same;
    });
    report.promised("Ref::asString of a String", "\"text\"", [] {
        String const value("text");
        return Ref(&value).asString();
    });
}
