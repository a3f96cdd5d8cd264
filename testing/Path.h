#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zel::kiv::testing {

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
    [[nodiscard]] std::string text() const
    {
        std::string text;
        for (auto const& step : m_steps) {
            text += std::visit([](auto const& value) { return stepText(value); }, step);
        }
        if (text.empty()) {
            return "the top";
        }
        return text.front() == '.' ? text.substr(1) : text;
    }

private:
    static bool isWord(std::string_view key)
    {
        return !key.empty() && std::all_of(key.begin(), key.end(), [](char character) {
            return (character >= 'a' && character <= 'z') ||
                   (character >= 'A' && character <= 'Z') ||
                   (character >= '0' && character <= '9') || character == '_';
        });
    }

    static std::string stepText(std::size_t index) { return "[" + std::to_string(index) + "]"; }
    static std::string stepText(std::string_view key)
    {
        if (isWord(key)) {
            return "." + std::string(key);
        }
        std::string text = "[\"";
        for (char const each : key) { // what stands in the quotes cannot end them
            text.append(each == '"' || each == '\\' ? "\\" : "").push_back(each);
        }
        return text + "\"]";
    }

    std::vector<std::variant<std::size_t, std::string_view>> m_steps;
};

} // namespace zel::kiv::testing
