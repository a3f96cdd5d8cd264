#pragma once

#include "diagnostics/Finding.h"
#include "json/ValueNames.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kiv {

/// What the check of a platform, `platform-check/check --json`, says of how that platform reads
/// values.
class Platform {
public:
    /// Reads the report. Throws `Failure` if it is none.
    explicit Platform(std::string const& path);

    /// What that platform gives for a value by this operation of `Ref`, `asInteger`: as messages
    /// show it, or `throws`. Nothing if the report does not tell: it has only samples, which speak
    /// for a value of their type if all of them come out the same, or all as they do on the
    /// stand-ins.
    [[nodiscard]] std::optional<std::string> reads(std::string_view operation,
                                                   data::Value const& value) const;

    /// Makes a finding on a value of another type say what that platform makes of it. The value
    /// must still be there.
    void apply(diagnostics::Finding& finding) const;

private:
    struct Sample {
        std::string what; ///< `asInteger of String "7"`
        std::string seen;
    };
    std::vector<Sample> m_samples;
};

} // namespace kiv
