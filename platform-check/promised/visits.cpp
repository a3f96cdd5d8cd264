#include "Visits.h"
#include "Report.h"

using namespace check;

void look(Report& report)
{
    Object const object;
    Array const array;
    String const text("text");
    Integer const integer(7);
    Float const real(0.5);
    Boolean const boolean(true);
    struct {
        char const* type;
        Value const* value;
        char const* call;
    } const cases[] = {
        {"Object", &object, "visitObject"}, {"Array", &array, "visitArray"},
        {"String", &text, "visitString"},   {"Integer", &integer, "visitInteger"},
        {"Float", &real, "visitFloat"},     {"Boolean", &boolean, "visitBoolean"},
    };
    for (auto const& [type, value, call] : cases) {
        report.promised("visit of " + std::string(type) + " calls", quoted(call),
                        [value = value] { return callsFor(value); });
    }
    report.promised("a visitor is one by dynamic_cast", "true", [] {
        struct Other {
            virtual ~Other() = default;
        };
        struct Both : Other, Visits {
        } both;
        return dynamic_cast<ConstVisitor*>(static_cast<Other*>(&both)) == &both;
    });
}
