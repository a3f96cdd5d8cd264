#pragma once

#include <string>

namespace kiv::diagnostics {

/// Who called into this library: the nearest function that lies outside it.
std::string originText();

} // namespace kiv::diagnostics
