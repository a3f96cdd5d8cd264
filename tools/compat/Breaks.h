#pragma once

#include <string>
#include <string_view>

namespace compat {

/// What a change of the interface breaks.
///
/// - wire: something that an old process wrote, and that old readers carry in full, does not come
///   out of a new reader as it was.
/// - source: client code that nobody edits no longer compiles against the new headers, or answers
///   otherwise to what old processes write.
/// - binary: a client that nobody builds again does not go with the new library.
struct Breaks {
    bool wire = false;
    bool source = false;
    bool binary = false;

    [[nodiscard]] bool any() const { return wire || source || binary; }
};

inline constexpr Breaks nothing{};
inline constexpr Breaks everything{.wire = true, .source = true, .binary = true};

/// The sum of both.
constexpr Breaks operator|(Breaks one, Breaks other)
{
    return {one.wire || other.wire, one.source || other.source, one.binary || other.binary};
}

/// What is left without `others`.
constexpr Breaks operator-(Breaks one, Breaks others)
{
    return {one.wire && !others.wire, one.source && !others.source, one.binary && !others.binary};
}

/// `wire, source, binary`, those that break; `nothing` if none does.
std::string toText(Breaks breaks);

/// The reverse, from words with commas and any blanks between. Throws `std::invalid_argument`,
/// which says what is wrong, on any other word.
Breaks breaksOf(std::string_view text);

} // namespace compat
