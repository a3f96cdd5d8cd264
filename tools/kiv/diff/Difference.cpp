#include "tools/kiv/diff/Difference.h"

#include <algorithm>

namespace kiv {

namespace {

using data::ValueType;

bool areBoth(ValueType::Code type, data::Value const& left, data::Value const& right)
{
    return left.getType() == type && right.getType() == type;
}

/// Numbers have a text that reads back as the same number, so texts tell all.
bool areSame(data::Value const& left, data::Value const& right)
{
    return left.getType() == right.getType() &&
           data::Ref(&left).asString() == data::Ref(&right).asString();
}

void compareObjects(Path& path, data::Object const& left, data::Object const& right,
                    DifferenceHandler const& handler)
{
    auto a = left.get().begin();
    auto b = right.get().begin();
    auto const endA = left.get().end();
    auto const endB = right.get().end();
    while (a != endA || b != endB) {
        bool const inA = a != endA && (b == endB || a->first <= b->first);
        bool const inB = b != endB && (a == endA || b->first <= a->first);
        path.enter(std::string_view(inA ? a->first : b->first));
        compare(path, inA ? static_cast<data::Value const*>(a->second) : nullptr,
                inB ? static_cast<data::Value const*>(b->second) : nullptr, handler);
        path.leave();
        if (inA) {
            ++a;
        }
        if (inB) {
            ++b;
        }
    }
}

void compareArrays(Path& path, data::Value const& left, data::Value const& right,
                   DifferenceHandler const& handler)
{
    // The getter of an array is not const, though it changes nothing.
    auto& a = const_cast<data::Array&>(static_cast<data::Array const&>(left)).get();
    auto& b = const_cast<data::Array&>(static_cast<data::Array const&>(right)).get();
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        path.enter(i);
        compare(path, i < a.size() ? a[i] : nullptr, i < b.size() ? b[i] : nullptr, handler);
        path.leave();
    }
}

} // namespace

void compare(Path& path, data::Value const* left, data::Value const* right,
             DifferenceHandler const& handler)
{
    if (left == nullptr || right == nullptr) {
        if (left != right) {
            handler(path, left, right);
        }
    } else if (areBoth(ValueType::Object, *left, *right)) {
        compareObjects(path, static_cast<data::Object const&>(*left),
                       static_cast<data::Object const&>(*right), handler);
    } else if (areBoth(ValueType::Array, *left, *right)) {
        compareArrays(path, *left, *right, handler);
    } else if (!areSame(*left, *right)) {
        handler(path, left, right);
    }
}

} // namespace kiv
