#pragma once

#include "frame/Api.h"

#include <map>
#include <string>

namespace zel::kiv::common {

/// How far an element has come that a client has asked a service for.
enum class ElementStatus : int {
    Created = 0,
    ServiceReady = 1,
    Pending = 2,
    Ongoing = 3,
    ClientReady = 4,
    ServiceSuccessful = 5,
    ServiceNotSuccessful = 6,
    Failed = 7,
};

/// The text of each status. Built when the library is loaded and constant from then on, so any
/// thread may read it. No field of the interface is tied to it.
extern ZEL_KIV_API std::map<ElementStatus, std::string> const ELEMENTSTATUSANDSTRINGMAP;

/// The status of each text, the other way round. Texts are case sensitive.
extern ZEL_KIV_API std::map<std::string, ElementStatus> const STRINGANDELEMENTSTATUSMAP;

} // namespace zel::kiv::common
