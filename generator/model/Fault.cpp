#include "generator/model/Fault.h"

namespace kivgen {
namespace {

std::string shown(SourcePosition const& place)
{
    if (place.line == 0) {
        return place.file;
    }
    return place.file + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

} // namespace

std::string toMessage(Fault const& fault)
{
    std::string message = shown(fault.place) + ": error: " + fault.text;
    for (Mention const& each : fault.also) {
        message += '\n' + shown(each.place) + ": note: " + each.text;
    }
    return message;
}

} // namespace kivgen
