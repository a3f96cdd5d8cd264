#include "generator/model/Fault.h"

namespace kivgen {

std::string toMessage(Fault const& fault)
{
    std::string message = fault.place.file;
    if (fault.place.line != 0) {
        message += ":" + std::to_string(fault.place.line);
        message += ":" + std::to_string(fault.place.column);
    }
    return message + ": error: " + fault.text;
}

} // namespace kivgen
