#pragma once

#include "testing/detail/ValueBuilder.h"
#include "values/values.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace zel::kiv::testing {

/// Is thrown for a text that is no JSON or that no values can hold. What it says begins with line
/// and column, counted from 1 and in characters.
class BadJson : public std::runtime_error {
public:
    BadJson(std::size_t line, std::size_t column, std::string const& what)
        : std::runtime_error(std::to_string(line) + ":" + std::to_string(column) + ": " + what)
    {
    }
};

namespace detail {

/// The place of a byte of `text`.
[[noreturn]] inline void refuseAt(std::string_view text, std::size_t offset,
                                  std::string const& what)
{
    std::string_view const before = text.substr(0, offset);
    std::size_t const lineStart = before.rfind('\n') + 1; // npos wraps round to zero
    auto const isFirstByte = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    };
    throw BadJson(static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1,
                  static_cast<std::size_t>(std::count_if(
                      before.begin() + static_cast<long>(lineStart), before.end(), isFirstByte)) +
                      1,
                  what);
}

/// Builds the values of a text that is whole in memory.
class TextBuilder : public ValueBuilder {
public:
    TextBuilder(std::string_view text, rapidjson::MemoryStream const& stream)
        : m_text(text), m_stream(stream)
    {
    }

    Owner result() { return std::move(whole()); }

private:
    [[noreturn]] void refuse(std::string const& what, bool /*isNext*/) const override
    {
        refuseAt(m_text, m_stream.Tell(), what);
    }

    std::string_view m_text;
    rapidjson::MemoryStream const& m_stream;
};

} // namespace detail

/// The values that a JSON text in UTF-8 stands for: null becomes a null entry, an integer an
/// `Integer`, any other number a `Float`. The caller owns them; null if the text is `null`.
///
/// Throws `BadJson`, also for an integer outside of 32 bits, a number too large for a double, and
/// nesting deeper than 1,000 levels.
inline std::unique_ptr<dataformats::data::Value> fromJson(std::string_view text)
{
    constexpr unsigned flags = rapidjson::kParseIterativeFlag |
                               rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(text.data(), text.size());
    detail::TextBuilder builder(text, stream);
    rapidjson::Reader reader;
    rapidjson::ParseResult const result = reader.Parse<flags>(stream, builder);
    if (result.IsError()) {
        detail::refuseAt(text, result.Offset(), rapidjson::GetParseError_En(result.Code()));
    }
    if (stream.Tell() != text.size()) {
        detail::refuseAt(text, stream.Tell(), "A zero byte cannot stand in JSON.");
    }
    return builder.result();
}

/// The same of a file. Throws `std::runtime_error` that names it if it cannot be read or is no
/// JSON.
inline std::unique_ptr<dataformats::data::Value> fromJsonFile(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string const text{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad()) {
        throw std::runtime_error(path + ": cannot be read");
    }
    try {
        return fromJson(text);
    } catch (BadJson const& fault) {
        throw std::runtime_error(path + ":" + fault.what());
    }
}

} // namespace zel::kiv::testing
