#include "tools/compat/Version.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace compat {

std::optional<Version> versionOf(std::string_view text)
{
    std::array<unsigned, 3> numbers{};
    char const* rest = text.data();
    char const* const end = rest + text.size();
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        if (place > 0 && (rest == end || *rest++ != '.')) {
            return std::nullopt;
        }
        auto const [behind, error] = std::from_chars(rest, end, numbers.at(place));
        if (error != std::errc{}) {
            return std::nullopt;
        }
        rest = behind;
    }
    return rest == end ? std::optional(Version{numbers[0], numbers[1], numbers[2]}) : std::nullopt;
}

std::string toText(Version const& version)
{
    return std::to_string(version.major) + '.' + std::to_string(version.minor) + '.' +
           std::to_string(version.patch);
}

Version next(Version const& version, Step step)
{
    switch (step) {
    case Step::None:
        break;
    case Step::Patch:
        return {version.major, version.minor, version.patch + 1};
    case Step::Minor:
        return {version.major, version.minor + 1, 0};
    case Step::Major:
        return {version.major + 1, 0, 0};
    }
    return version;
}

Step stepOf(std::span<Change const> changes)
{
    Step most = Step::None;
    for (Change const& change : changes) {
        most = std::max(most, change.rule->step);
    }
    return most;
}

} // namespace compat
