#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    Object object;
    auto* const first = new Integer(1);
    auto* const second = new Integer(2);
    object.setNew("b", first);
    object.setNew("a", second);

    report.promised("find on an empty Object gives its end", "true", [] {
        Object const empty;
        return empty.get().find("a") == empty.get().end();
    });
    report.promised("find of an absent key gives the end", "true",
                    [&] { return object.get().find("ab") == object.get().end(); });
    report.promised("find of each key gives the value stored under it", "true", [&] {
        return static_cast<Value*>(object.get().find("b")->second) == first &&
               static_cast<Value*>(object.get().find("a")->second) == second;
    });
    report.promised("keys are told apart by their case", "true",
                    [&] { return object.get().find("A") == object.get().end(); });
    report.promised("setNew keeps a copy of the key", "true", [&] {
        std::string key = "a key that is too long to lie within a std::string itself";
        object.setNew(key.c_str(), new Integer(3));
        std::string const same = key;
        key.assign(key.size(), 'x');
        return object.get().find(same) != object.get().end();
    });
    report.promised("visit of an empty Object calls", "visitObject", [] {
        static std::string calls;
        Object const empty;
        calls = callsFor(&empty);
        return calls.c_str();
    });
    report.promised("visitObject is given what get gives", "true", [&] {
        Visits visits;
        visits.visit(&object);
        return visits.object == &object.get();
    });
}
