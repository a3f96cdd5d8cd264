#pragma once

#include "testing/Path.h"
#include "testing/detail/maxDepth.h"
#include "values/values.h"

#include <rapidjson/rapidjson.h>

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zel::kiv::testing::detail {

/// Builds values from the events of RapidJSON's reader, which calls the public operations by these
/// names and is told to give the text of numbers. Needs nothing of the platform but what it
/// promises.
///
/// null becomes a null entry, an integer an `Integer`, any other number a `Float`; of a repeated
/// key the platform decides.
class ValueBuilder {
public:
    using Value = dataformats::data::Value;
    using Owner = std::unique_ptr<Value>;

    ValueBuilder() = default;
    ValueBuilder(ValueBuilder const&) = delete;
    ValueBuilder& operator=(ValueBuilder const&) = delete;
    virtual ~ValueBuilder() = default;

    bool Null() { return end(nullptr); }
    bool Bool(bool value) { return end(std::make_unique<dataformats::data::Boolean>(value)); }

    bool RawNumber(char const* text, rapidjson::SizeType length, bool /*copy*/)
    {
        std::string const number(text, length);
        bool const isInteger = number.find_first_of(".eE") == std::string::npos;
        return end(isInteger ? integer(number) : real(number));
    }

    bool String(char const* text, rapidjson::SizeType length, bool /*copy*/)
    {
        checkText({text, length});
        return end(std::make_unique<dataformats::data::String>(std::string(text, length)));
    }

    bool Key(char const* text, rapidjson::SizeType length, bool /*copy*/)
    {
        std::string_view const key(text, length);
        checkText(key);
        if (key.find('\0') != std::string_view::npos) {
            refuse("this key holds a zero byte, which no key of a value can", false);
        }
        m_levels.back().key = key;
        named();
        return true;
    }

    bool StartObject() { return open(std::make_unique<dataformats::data::Object>(), true); }
    bool StartArray() { return open(std::make_unique<dataformats::data::Array>(), false); }
    bool EndObject(rapidjson::SizeType /*members*/) { return close(); }
    bool EndArray(rapidjson::SizeType /*entries*/) { return close(); }

    static bool Int(int) { return false; }
    static bool Uint(unsigned) { return false; }
    static bool Int64(std::int64_t) { return false; }
    static bool Uint64(std::uint64_t) { return false; }
    static bool Double(double) { return false; }

protected:
    /// An array or object that has not ended yet.
    struct Level {
        Owner holder;
        bool isObject;
        std::string key;          ///< of an object: the key that waits for its value
        std::size_t children = 0; ///< how many values have ended in it
    };

    /// Says by an exception what is wrong at the last token, or at the next one.
    [[noreturn]] virtual void refuse(std::string const& what, bool isNext) const = 0;

    /// What stands for an integer outside of 32 bits, if it is not refused.
    virtual Owner wideInteger(std::string const& digits)
    {
        refuse("the integer " + digits + " at " + path() +
                   " does not fit into 32 bits (-2147483648 to 2147483647)",
               false);
        return nullptr; // which is not reached
    }

    /// What stands for a number that is too large for a double, if it is not refused.
    virtual Owner wideNumber(std::string const& number)
    {
        refuse("the number " + number + " at " + path() + " is too large for a double", false);
        return nullptr; // which is not reached
    }

    /// What stands for a number so near to zero that a double has none but zero for it.
    virtual Owner tinyNumber(std::string const& /*number*/)
    {
        return std::make_unique<dataformats::data::Float>(0.0);
    }

    /// Are told that an array or object begins, that a key was read, and that the innermost of them
    /// ends, before its value does.
    virtual void opened(Value const& /*holder*/) {}
    virtual void named() {}
    virtual void closed() {}

    /// Takes a value that has ended: the whole one if no level is open, else one that belongs into
    /// the last level under its key, or after so many others.
    virtual void take(Owner value, std::size_t /*index*/)
    {
        if (m_levels.empty()) {
            m_whole = std::move(value);
        } else if (Level& parent = m_levels.back(); parent.isObject) {
            static_cast<dataformats::data::Object&>(*parent.holder)
                .setNew(parent.key.c_str(), value.release());
        } else {
            static_cast<dataformats::data::Array&>(*parent.holder).pushNew(value.release());
        }
    }

    /// The whole value, once it has ended; null for null.
    Owner& whole() { return m_whole; }
    [[nodiscard]] std::vector<Level> const& levels() const { return m_levels; }

    /// Puts another array into the place of the one that is open last, and gives that.
    Owner replaceHolder(Owner array)
    {
        return std::exchange(m_levels.back().holder, std::move(array));
    }

    /// The path of the value that comes next.
    [[nodiscard]] std::string path() const
    {
        Path path;
        for (auto const& level : m_levels) {
            level.isObject ? path.enter(level.key) : path.enter(level.children);
        }
        return path.text();
    }

private:
    bool open(Owner holder, bool isObject)
    {
        if (m_levels.size() == maxDepth) {
            refuse("nested deeper than " + std::to_string(maxDepth) + " levels", true);
        }
        m_levels.push_back({std::move(holder), isObject, {}, 0});
        opened(*m_levels.back().holder);
        return true;
    }

    bool close()
    {
        Owner value = std::move(m_levels.back().holder);
        m_levels.pop_back();
        closed();
        return end(std::move(value));
    }

    bool end(Owner value)
    {
        take(std::move(value), m_levels.empty() ? 0 : m_levels.back().children++);
        return true;
    }

    Owner integer(std::string const& digits)
    {
        int value = 0;
        auto const result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return result.ec == std::errc() ? std::make_unique<dataformats::data::Integer>(value)
                                        : wideInteger(digits);
    }

    Owner real(std::string const& number)
    {
        double const value = std::strtod(number.c_str(), nullptr);
        if (!std::isfinite(value)) {
            return wideNumber(number);
        }
        bool const isZero = number.find_first_of("123456789") >= number.find_first_of("eE");
        if (value == 0.0 && !isZero) {
            return tinyNumber(number);
        }
        return std::make_unique<dataformats::data::Float>(value);
    }

    /// The reader lets half of a surrogate pair through when it is written as an escape. In UTF-8
    /// that is 0xED and a byte from 0xA0 on, and nothing else is.
    void checkText(std::string_view text) const
    {
        for (auto at = text.find('\xED'); at < text.size() - 1; at = text.find('\xED', at + 1)) {
            if (static_cast<unsigned char>(text[at + 1]) >= 0xA0U) {
                refuse("this text has half of a surrogate pair in an escape, which is no "
                       "character",
                       false);
            }
        }
    }

    Owner m_whole;
    std::vector<Level> m_levels;
};

} // namespace zel::kiv::testing::detail
