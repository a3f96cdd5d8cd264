#pragma once

#include "tools/compat/Rules.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

namespace compat {

/// The version of a release. The first number is that of the library's SONAME.
struct Version {
    unsigned major = 0;
    unsigned minor = 0;
    unsigned patch = 0;

    friend bool operator<(Version const& one, Version const& other)
    {
        return std::tie(one.major, one.minor, one.patch) <
               std::tie(other.major, other.minor, other.patch);
    }
};

/// `1.0.0`, or nothing if the text is no version.
std::optional<Version> versionOf(std::string_view text);

std::string toText(Version const& version);

/// The lowest version that may follow.
Version next(Version const& version, Step step);

/// What the changes raise, the most of all.
Step stepOf(std::span<Change const> changes);

} // namespace compat
