#pragma once

#include "Report.h"
#include "values/values.h"

namespace check {

/// What the four readings of a value give.
inline void readings(Report& report, std::string const& what,
                     zel::dataformats::data::Value const* value)
{
    using zel::dataformats::data::Ref;
    report.open("asString of " + what, [&] { return Ref(value).asString(); });
    report.open("asInteger of " + what, [&] { return Ref(value).asInteger(); });
    report.open("asFloat of " + what, [&] { return Ref(value).asFloat(); });
    report.open("asBoolean of " + what, [&] { return Ref(value).asBoolean(); });
}

} // namespace check
