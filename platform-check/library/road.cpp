#include "Report.h"
#include "values/values.h"

#include "services/guidance/DrivingContexts.h"

#include <memory>

using namespace check;
using namespace zel::dataformats::data;
using zel::kiv::common::guidance::DrivingContexts;

// The road of one value through the library: a tree with one field is read and written again.

namespace {

using Owner = std::unique_ptr<Value>;

Value* object(char const* key, Value* value)
{
    auto* const made = new Object;
    made->setNew(key, value);
    return made;
}

Value* array(Value* first, Value* second)
{
    auto* const made = new Array;
    made->pushNew(first);
    made->pushNew(second);
    return made;
}

Value* text(char const* words)
{
    return new String(words);
}

Value const* below(Value const* value, char const* key)
{
    auto const& map = static_cast<Object const*>(value)->get();
    auto const found = map.find(key);
    return found == map.end() ? nullptr : static_cast<Value const*>(found->second);
}

Value const* entry(Value const* value, int index)
{
    // The getter of an array is not const, though it changes nothing.
    return const_cast<Array*>(static_cast<Array const*>(value))->get().begin()[index];
}

/// What an element comes out as that has one field.
Owner element(char const* key, Value* value)
{
    auto const document = std::make_unique<Array>();
    document->pushNew(object(key, value));
    DrivingContexts contexts;
    contexts.deserialize(document.get());
    Owner const written = contexts.serialize();
    return Owner(entry(written.get(), 0)->clone());
}

/// Asks what has arrived under the key for its text.
std::string arrived(char const* key, Value* value, char const* nested = nullptr)
{
    Owner const whole = element(key, value);
    Value const* found = below(whole.get(), key);
    if (found != nullptr && found->getType() == ValueType::Array) {
        found = entry(found, 1);
    }
    if (found != nullptr && nested != nullptr) {
        found = below(found, nested);
    }
    return found == nullptr ? "nothing" : Ref(found).asString();
}

} // namespace

void look(Report& report)
{
    report.promised("a string arrives", quoted("near"),
                    [] { return arrived("announcementState", text("near")); });
    report.promised("an int arrives", "-3", [] {
        Owner const whole = element("personsInCarDetected", new Integer(-3));
        return Ref(below(whole.get(), "personsInCarDetected")).asInteger();
    });
    report.promised("a double arrives", "0.5", [] {
        Owner const whole = element("distanceToUpcomingLanes", new Float(0.5));
        return Ref(below(whole.get(), "distanceToUpcomingLanes")).asFloat();
    });
    report.promised("a bool arrives", "true", [] {
        Owner const whole = element("trailerHitchAvailable", new Boolean(true));
        return Ref(below(whole.get(), "trailerHitchAvailable")).asBoolean();
    });
    report.promised("a string list arrives", quoted("electric"), [] {
        return arrived("includedEngines", array(text("gas"), text("electric")));
    });
    report.promised("an element arrives, with an int list in it", "90", [] {
        Owner const whole =
            element("nextManeuver", object("sideStreets", array(new Integer(30), new Integer(90))));
        return Ref(entry(below(below(whole.get(), "nextManeuver"), "sideStreets"), 1)).asInteger();
    });
    report.promised("an element named by its uri arrives with the id", quoted("7"), [] {
        return arrived("currentCarPosition", text("/guidance/carPositions/7"), "id");
    });
    report.promised("an element list arrives", quoted("second"), [] {
        return arrived("currentLanes",
                       array(object("id", text("first")), object("id", text("second"))), "id");
    });
    report.promised("an external arrives", quoted("/routes/all/7"),
                    [] { return arrived("activeRoute", text("/routes/all/7"), "uri"); });
    report.promised("an external list arrives", quoted("/events/all/8"), [] {
        return arrived("areaEvents", array(text("/events/all/7"), text("/events/all/8")), "uri");
    });
    for (char const* const uri : {"/guidance/signs/7", "/somewhere/else/7"}) {
        report.promised("a polymorphic " + std::string(uri) + " arrives", quoted(uri), [uri] {
            Owner const whole = element("notifications", array(object("text", text("first")),
                                                               object("objectUri", text(uri))));
            Value const* const held =
                below(entry(below(whole.get(), "notifications"), 1), "objectUri");
            return held == nullptr ? std::string("nothing") : Ref(below(held, "uri")).asString();
        });
    }
}
