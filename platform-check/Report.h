#pragma once

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

/// What every point of the check is written with: it says what it did and what it saw.
namespace check {

/// A text as it stands in JSON, which is as well the way to show one that may be empty.
inline std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (char const each : text) {
        if (each == '"' || each == '\\') {
            result += '\\';
        }
        if (static_cast<unsigned char>(each) < 0x20U) {
            char escape[8];
            static_cast<void>(std::snprintf(escape, sizeof escape, "\\u%04x", each));
            result += escape;
        } else {
            result += each;
        }
    }
    return result + '"';
}

inline std::string shown(std::string const& text)
{
    return quoted(text);
}
inline std::string shown(char const* words)
{
    return words;
}
inline std::string shown(bool value)
{
    return value ? "true" : "false";
}
inline std::string shown(int value)
{
    return std::to_string(value);
}
inline std::string shown(double value)
{
    char text[32];
    for (int digits = 6; digits <= 17; ++digits) {
        static_cast<void>(std::snprintf(text, sizeof text, "%.*g", digits, value));
        if (std::strtod(text, nullptr) == value) {
            break;
        }
    }
    return text;
}

/// What comes of an operation, be it an exception.
template <typename Operation>
std::string outcome(Operation const& operation)
{
    try {
        return shown(operation());
    } catch (std::exception const&) {
        return "throws";
    } catch (...) {
        return "throws what is no std::exception";
    }
}

class Report {
public:
    explicit Report(bool isJson) : m_isJson(isJson) {}

    /// A point that is promised: what was done, and what must be seen.
    template <typename Operation>
    void promised(std::string const& done, std::string const& wanted, Operation const& operation)
    {
        std::string const seen = outcome(operation);
        print(seen == wanted ? "kept" : "broken", done,
              seen == wanted ? seen : seen + ", where " + wanted + " is promised");
    }

    /// A point that a platform decides by itself.
    template <typename Operation>
    void open(std::string const& done, Operation const& operation)
    {
        print("open", done, outcome(operation));
    }

private:
    void print(char const* verdict, std::string const& done, std::string const& seen) const
    {
        std::printf(m_isJson ? "{\"verdict\":\"%s\",\"done\":%s,\"seen\":%s}\n" : "%-7s %-52s %s\n",
                    verdict, m_isJson ? quoted(done).c_str() : done.c_str(),
                    m_isJson ? quoted(seen).c_str() : seen.c_str());
        static_cast<void>(std::fflush(stdout)); // the next operation may end the program
    }

    bool m_isJson;
};

} // namespace check

/// A point is one unit with this function; the program around it is Main.cpp.
void look(check::Report& report);
