#include "Report.h"
#include "Visits.h"

#include <cstring>

using namespace check;

namespace {

/// The place of a virtual operation in the table of its class, counted from zero, the destructor's
/// two forms being the first.
template <typename Operation>
int slot(Operation operation)
{
    std::size_t offset = 0;
    std::memcpy(&offset, &operation, sizeof offset);
    return static_cast<int>(offset / sizeof(void*)); // the lowest bit is a mark
}

} // namespace

void look(Report& report)
{
    report.promised("slot of Value::getType", "4", [] { return slot(&Value::getType); });
    report.promised("slot of Value::clone", "5", [] { return slot(&Value::clone); });
    report.promised("slots of ConstVisitor, visitNull to visitObject", "2, 3, 4, 5, 6, 7, 8, 9",
                    [] {
                        static std::string slots;
                        for (int const each :
                             {slot(&ConstVisitor::visitNull), slot(&ConstVisitor::visitBoolean),
                              slot(&ConstVisitor::visitInteger), slot(&ConstVisitor::visitFloat),
                              slot(&ConstVisitor::visitString), slot(&ConstVisitor::visitBlob),
                              slot(&ConstVisitor::visitArray), slot(&ConstVisitor::visitObject)}) {
                            slots += (slots.empty() ? "" : ", ") + std::to_string(each);
                        }
                        return slots.c_str();
                    });
}
