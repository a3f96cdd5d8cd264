#include "tools/kiv/check/TextFindings.h"

#include <utility>

namespace kiv {

using diagnostics::Fate;
using diagnostics::Finding;
using diagnostics::Id;

Placed textFinding(Fate fate, Id id, json::Position position, std::string const& path,
                   std::string stands, std::string becomes, std::string meant)
{
    Finding finding;
    finding.fate = fate;
    finding.id = id;
    finding.path = path;
    finding.stands = std::move(stands);
    finding.becomes = std::move(becomes);
    finding.meant = std::move(meant);
    return {position, std::move(finding)};
}

Placed misfitFinding(json::Misfit misfit, json::Position position, std::string const& path,
                     std::string const& number)
{
    switch (misfit) {
    case json::Misfit::WideInteger:
        return textFinding(Fate::Forbidden, Id::WideNumber, position, path, "the integer " + number,
                           "no value holds it: kiv convert refuses it",
                           "integers have 32 bits: -2147483648 to 2147483647");
    case json::Misfit::WideNumber:
        return textFinding(Fate::Forbidden, Id::WideNumber, position, path, "the number " + number,
                           "no value holds it: kiv convert refuses it",
                           "it is too large for a double");
    case json::Misfit::TinyNumber:
        break;
    }
    return textFinding(Fate::Suspect, Id::TinyNumber, position, path, "the number " + number,
                       "it reads as 0", "a double holds none so near to zero");
}

} // namespace kiv
