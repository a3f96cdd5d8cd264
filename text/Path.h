#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kiv {

/// The way from the top of a document to a value in it: `[3].station.uri`.
class Path {
public:
    /// One step down, into an array. The steps are undone by `leave`.
    void enter(std::size_t index) { m_steps.emplace_back(index); }
    /// One step down, into an object. `key` must outlive the step.
    void enter(std::string_view key) { m_steps.emplace_back(key); }
    void leave() { m_steps.pop_back(); }

    /// The path as messages show it. A key that is no word is shown as `["two words"]`; the top
    /// itself is `the top`.
    [[nodiscard]] std::string text() const;

private:
    std::vector<std::variant<std::size_t, std::string_view>> m_steps;
};

} // namespace kiv
