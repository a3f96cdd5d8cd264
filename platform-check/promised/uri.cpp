#include "Report.h"
#include "Visits.h"

using namespace check;

namespace {

std::string third(std::string const& uri)
{
    std::string texts[3];
    zel::kiv::common::getUriSplitted(uri, texts[0], texts[1], texts[2]);
    return texts[2];
}

} // namespace

void look(Report& report)
{
    report.promised("third part of /radio/stations/7", "\"7\"",
                    [] { return third("/radio/stations/7"); });
    report.promised("third part of /radio/stations", "\"\"",
                    [] { return third("/radio/stations"); });
}
