#pragma once

#include "values/values.h"

/// What the sources of frame and services share. Nothing here is exported or installed.
namespace zel::kiv::common::internal {

/// The value of a map entry, which holds it untyped; may be null.
template <typename Entry>
zel::dataformats::data::Value const* valueOf(Entry const& entry)
{
    return static_cast<zel::dataformats::data::Value const*>(entry.second);
}

} // namespace zel::kiv::common::internal
