#pragma once

#include "testing/Path.h"
#include "testing/detail/walk.h"
#include "testing/toJson.h"
#include "values/values.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace zel::kiv::testing {

namespace detail {

inline bool areBoth(int type, dataformats::data::Value const& left,
                    dataformats::data::Value const& right)
{
    return left.getType() == type && right.getType() == type;
}

} // namespace detail

/// Compares two values field by field and entry by entry, and calls `handler(path, left, right)`
/// for each place where they differ; null stands for a value that is not there. No two of the
/// values are both arrays or both objects. A number with a fraction and one without are never the
/// same.
///
/// `path` is that of both, and stands there unchanged afterwards unless the handler throws. Uses
/// stack in proportion to the depth.
template <typename Handler>
void compare(Path& path, dataformats::data::Value const* left,
             dataformats::data::Value const* right, Handler const& handler);

namespace detail {

template <typename Handler>
void compareObjects(Path& path, dataformats::data::Object const& left,
                    dataformats::data::Object const& right, Handler const& handler)
{
    using dataformats::data::Value;
    auto a = walkable(left.get()).begin();
    auto b = walkable(right.get()).begin();
    auto const endA = left.get().end();
    auto const endB = right.get().end();
    while (a != endA || b != endB) {
        bool const inA = a != endA && (b == endB || a->first <= b->first);
        bool const inB = b != endB && (a == endA || b->first <= a->first);
        path.enter(std::string_view(inA ? a->first : b->first));
        compare(path, inA ? static_cast<Value const*>(a->second) : nullptr,
                inB ? static_cast<Value const*>(b->second) : nullptr, handler);
        path.leave();
        if (inA) {
            ++a;
        }
        if (inB) {
            ++b;
        }
    }
}

template <typename Handler>
void compareArrays(Path& path, dataformats::data::Value const& left,
                   dataformats::data::Value const& right, Handler const& handler)
{
    using dataformats::data::Array;
    // The getter of an array is not const, though it changes nothing.
    auto& a = const_cast<Array&>(static_cast<Array const&>(left)).get();
    auto& b = const_cast<Array&>(static_cast<Array const&>(right)).get();
    auto const sizeA = static_cast<std::size_t>(a.end() - a.begin());
    auto const sizeB = static_cast<std::size_t>(b.end() - b.begin());
    for (std::size_t i = 0; i < std::max(sizeA, sizeB); ++i) {
        path.enter(i);
        compare(path, i < sizeA ? a.begin()[i] : nullptr, i < sizeB ? b.begin()[i] : nullptr,
                handler);
        path.leave();
    }
}

} // namespace detail

template <typename Handler>
void compare(Path& path, dataformats::data::Value const* left,
             dataformats::data::Value const* right, Handler const& handler)
{
    using dataformats::data::Object;
    using dataformats::data::ValueType;
    if (left == nullptr || right == nullptr) {
        if (left != right) {
            handler(path, left, right);
        }
    } else if (detail::areBoth(ValueType::Object, *left, *right)) {
        detail::compareObjects(path, static_cast<Object const&>(*left),
                               static_cast<Object const&>(*right), handler);
    } else if (detail::areBoth(ValueType::Array, *left, *right)) {
        detail::compareArrays(path, *left, *right, handler);
    } else if (toJson(left) != toJson(right)) {
        handler(path, left, right);
    }
}

/// Where a value is another than was expected: a line for each place, `[0].position: 3, but
/// expected was 4`. Empty if they are the same. Both may be null.
inline std::string difference(dataformats::data::Value const* expected,
                              dataformats::data::Value const* actual)
{
    std::string words;
    Path path;
    compare(path, expected, actual,
            [&words](Path const& place, auto const* left, auto const* right) {
                words += (words.empty() ? "" : "\n") + place.text() + ": " +
                         (right == nullptr ? "nothing" : toJson(right)) + ", but expected was " +
                         (left == nullptr ? "nothing" : toJson(left));
            });
    return words;
}

} // namespace zel::kiv::testing
