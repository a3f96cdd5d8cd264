#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    report.promised("type code of a String", "5", [] { return int{String("").getType()}; });
    report.promised("type code of an Array", "7", [] { return int{Array().getType()}; });
    report.promised("type code of an Object", "8", [] { return int{Object().getType()}; });
    report.promised("ValueType::String, Array, Object", "5, 7, 8", [] {
        static std::string const codes = std::to_string(ValueType::String) + ", " +
                                         std::to_string(ValueType::Array) + ", " +
                                         std::to_string(ValueType::Object);
        return codes.c_str();
    });
}
