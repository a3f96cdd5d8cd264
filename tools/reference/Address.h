#pragma once

#include "catalogue/Catalogue.h"

#include <string>
#include <string_view>

namespace reference {

/// Where the pages speak of things: a file beside all the others and a place in it. People share
/// these addresses, so they stay as they are.

/// `radio.html`
std::string addressOf(std::string_view service);

/// `radio.presets.html`, or where the frame's page has `ExternalResourceObject`.
std::string addressOf(zel::kiv::catalogue::Resource const& resource);

/// `radio.presets.html#station`
std::string addressOf(zel::kiv::catalogue::Resource const& resource,
                      zel::kiv::catalogue::Field const& field);

/// `kinds.html#string-list`
std::string addressOf(zel::kiv::catalogue::Kind kind);

/// The place on the page of the kinds: `string-list`.
std::string placeOf(zel::kiv::catalogue::Kind kind);

} // namespace reference
