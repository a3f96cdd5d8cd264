#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a field of that key might plausibly hold. Nothing here is part of the interface, which
/// fixes no values; the same key always gets the same.
namespace zel::kiv::sample {

/// The words of a name in small letters: "gear transmission mode" for `gearTransmissionMode`.
std::string wordsOf(std::string_view name);

std::string textFor(std::string_view key);
std::vector<std::string> textsFor(std::string_view key); ///< two of them
int intFor(std::string_view key);
double doubleFor(std::string_view key);

} // namespace zel::kiv::sample
