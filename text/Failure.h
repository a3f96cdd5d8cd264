#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace kiv {

/// What a command was asked to do cannot be done: the tool says why on standard error and ends with
/// exit code 2.
class Failure : public std::runtime_error {
public:
    /// A fault of the call as a whole.
    explicit Failure(std::string const& what) : Failure("kiv", what) {}

    /// A fault with a place, `presets.json:3:14` or `presets.json`.
    Failure(std::string where, std::string const& what)
        : std::runtime_error(what), m_where(std::move(where))
    {
    }

    [[nodiscard]] std::string const& where() const noexcept { return m_where; }

private:
    std::string m_where;
};

} // namespace kiv
