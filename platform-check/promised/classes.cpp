#include "Report.h"
#include "Visits.h"

using namespace check;

namespace {

/// Whether a pointer to the value and to its `Value` are the same.
template <typename Derived, typename... Arguments>
bool isOnePointer(Arguments const&... arguments)
{
    Value* const base = new Derived(arguments...);
    bool const same = static_cast<void*>(base) == static_cast<void*>(static_cast<Derived*>(base));
    delete base;
    return same;
}

} // namespace

void look(Report& report)
{
    report.promised("an Object is at the address of its Value", "true",
                    [] { return isOnePointer<Object>(); });
    report.promised("an Array is at the address of its Value", "true",
                    [] { return isOnePointer<Array>(); });
    report.promised("a String is at the address of its Value", "true",
                    [] { return isOnePointer<String>(std::string("text")); });
    report.promised("an Integer is at the address of its Value", "true",
                    [] { return isOnePointer<Integer>(7); });
    report.promised("a Float is at the address of its Value", "true",
                    [] { return isOnePointer<Float>(0.5); });
    report.promised("a Boolean is at the address of its Value", "true",
                    [] { return isOnePointer<Boolean>(true); });
}
