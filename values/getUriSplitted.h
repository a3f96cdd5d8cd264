#pragma once

#include "values/PlatformApi.h"

#include <string>

namespace zel::kiv::common {

/// Splits a uri of the form /service/resource/id: `first` becomes the service, `second` the
/// resource and `third` the id, each empty if the uri has no such part. The leading slash may be
/// missing; what follows a slash behind the id is left out. The three must be different strings,
/// and none of them `uri` itself. Throws `std::bad_alloc` when memory runs out.
ZEL_PLATFORM_API void getUriSplitted(std::string const& uri, std::string& first,
                                     std::string& second, std::string& third);

} // namespace zel::kiv::common
