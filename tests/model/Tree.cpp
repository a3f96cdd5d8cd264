#include "tests/model/Tree.h"

#include "values/values.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdint>

namespace model {

namespace {

namespace data = zel::dataformats::data;

Tree::List listOf(data::Array const& array)
{
    Tree::List list;
    // The getter of an array is not const, though it changes nothing.
    for (data::Value const* const entry : const_cast<data::Array&>(array).get()) {
        list.push_back(treeOf(entry));
    }
    return list;
}

Tree::Map mapOf(data::Object const& object)
{
    Tree::Map map;
    for (auto const& entry : object.get()) {
        map.push_back({entry.first, treeOf(static_cast<data::Value const*>(entry.second))});
    }
    return map;
}

struct ValueMaker {
    using Made = std::unique_ptr<data::Value>;

    Made operator()(Tree::Nothing /*nothing*/) const { return nullptr; }
    Made operator()(Tree::Other /*other*/) const { return std::make_unique<data::Null>(); }
    Made operator()(bool flag) const { return std::make_unique<data::Boolean>(flag); }
    Made operator()(int number) const { return std::make_unique<data::Integer>(number); }
    Made operator()(double number) const { return std::make_unique<data::Float>(number); }
    Made operator()(std::string const& text) const { return std::make_unique<data::String>(text); }

    Made operator()(Tree::List const& list) const
    {
        auto array = std::make_unique<data::Array>();
        for (Tree const& each : list) {
            array->pushNew(valueOf(each).release());
        }
        return array;
    }

    Made operator()(Tree::Map const& map) const
    {
        auto object = std::make_unique<data::Object>();
        for (Tree::Member const& each : map) {
            object->setNew(each.key.c_str(), valueOf(each.tree).release());
        }
        return object;
    }
};

std::string quoted(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (char const each : text) {
        auto const code = static_cast<unsigned char>(each);
        if (each == '"' || each == '\\') {
            result += {'\\', each};
        } else if (code >= 0x20 && code < 0x7f) {
            result += each;
        } else {
            result += {'\\', 'x', digits[code / 16], digits[code % 16]};
        }
    }
    return result + '"';
}

struct Describer {
    std::string operator()(Tree::Nothing /*nothing*/) const { return "nothing"; }
    std::string operator()(Tree::Other other) const { return std::string(other.typeName); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(std::string const& text) const { return quoted(text); }

    std::string operator()(double number) const
    {
        std::array<char, 32> text{};
        char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
        std::string result(text.data(), end);
        return result.find_first_of(".en") == std::string::npos ? result + ".0" : result;
    }

    std::string operator()(Tree::List const& list) const
    {
        std::string text;
        for (Tree const& each : list) {
            text += (text.empty() ? "" : ",") + describe(each);
        }
        return '[' + text + ']';
    }

    std::string operator()(Tree::Map const& map) const
    {
        std::string text;
        for (Tree::Member const& each : map) {
            text += (text.empty() ? "" : ",") + quoted(each.key) + ':' + describe(each.tree);
        }
        return '{' + text + '}';
    }
};

/// Compares two trees and keeps the path to the first place where they differ.
class Comparison {
public:
    std::string compare(Tree const& expected, Tree const& got)
    {
        if (expected.content.index() != got.content.index()) {
            return fault(expected, got);
        }
        if (auto const* const list = std::get_if<Tree::List>(&expected.content)) {
            return compareLists(*list, std::get<Tree::List>(got.content));
        }
        if (auto const* const map = std::get_if<Tree::Map>(&expected.content)) {
            return compareMaps(*map, std::get<Tree::Map>(got.content));
        }
        return isSamePlain(expected, got) ? "" : fault(expected, got);
    }

private:
    static bool isSamePlain(Tree const& expected, Tree const& got)
    {
        if (auto const* const number = std::get_if<double>(&expected.content)) {
            return std::bit_cast<std::uint64_t>(*number) ==
                   std::bit_cast<std::uint64_t>(std::get<double>(got.content));
        }
        if (auto const* const text = std::get_if<std::string>(&expected.content)) {
            return *text == std::get<std::string>(got.content);
        }
        if (auto const* const number = std::get_if<int>(&expected.content)) {
            return *number == std::get<int>(got.content);
        }
        if (auto const* const flag = std::get_if<bool>(&expected.content)) {
            return *flag == std::get<bool>(got.content);
        }
        auto const* const other = std::get_if<Tree::Other>(&expected.content);
        return other == nullptr || *other == std::get<Tree::Other>(got.content);
    }

    std::string compareLists(Tree::List const& expected, Tree::List const& got)
    {
        for (std::size_t index = 0; index < std::max(expected.size(), got.size()); ++index) {
            std::string found = below('[' + std::to_string(index) + ']',
                                      index < expected.size() ? &expected[index] : nullptr,
                                      index < got.size() ? &got[index] : nullptr);
            if (!found.empty()) {
                return found;
            }
        }
        return {};
    }

    std::string compareMaps(Tree::Map const& expected, Tree::Map const& got)
    {
        auto left = expected.begin();
        auto right = got.begin();
        while (left != expected.end() || right != got.end()) {
            bool const takeLeft =
                right == got.end() || (left != expected.end() && left->key <= right->key);
            bool const takeRight =
                left == expected.end() || (right != got.end() && right->key <= left->key);
            std::string const& key = takeLeft ? left->key : right->key;
            std::string found = below('.' + key, takeLeft ? &left->tree : nullptr,
                                      takeRight ? &right->tree : nullptr);
            if (!found.empty()) {
                return found;
            }
            left += takeLeft ? 1 : 0;
            right += takeRight ? 1 : 0;
        }
        return {};
    }

    /// One step down; null stands for a place that is not there.
    std::string below(std::string const& step, Tree const* expected, Tree const* got)
    {
        std::size_t const length = m_path.size();
        m_path += step;
        std::string result;
        if (expected == nullptr) {
            result = m_path + ": not expected, got " + describe(*got);
        } else if (got == nullptr) {
            result = m_path + ": expected " + describe(*expected) + ", not there";
        } else {
            result = compare(*expected, *got);
        }
        m_path.resize(length);
        return result;
    }

    [[nodiscard]] std::string fault(Tree const& expected, Tree const& got) const
    {
        return (m_path.empty() ? "the whole" : m_path) + ": expected " + describe(expected) +
               ", got " + describe(got);
    }

    std::string m_path;
};

} // namespace

Tree treeOf(data::Value const* value)
{
    if (value == nullptr) {
        return {Tree::Nothing{}};
    }
    switch (value->getType()) {
    case data::ValueType::Boolean:
        return {static_cast<data::Boolean const*>(value)->get()};
    case data::ValueType::Integer:
        return {static_cast<data::Integer const*>(value)->get()};
    case data::ValueType::Float:
        return {static_cast<data::Float const*>(value)->get()};
    case data::ValueType::String:
        return {static_cast<data::String const*>(value)->get()};
    case data::ValueType::Array:
        return {listOf(*static_cast<data::Array const*>(value))};
    case data::ValueType::Object:
        return {mapOf(*static_cast<data::Object const*>(value))};
    default:
        return {Tree::Other{value->typeName()}};
    }
}

std::unique_ptr<data::Value> valueOf(Tree const& tree)
{
    return std::visit(ValueMaker(), tree.content);
}

std::string difference(Tree const& expected, Tree const& got)
{
    return Comparison().compare(expected, got);
}

std::string describe(Tree const& tree)
{
    return std::visit(Describer(), tree.content);
}

} // namespace model
