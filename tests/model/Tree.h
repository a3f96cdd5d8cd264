#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zel::dataformats::data {
class Value;
} // namespace zel::dataformats::data

namespace model {

/// A tree of values as plain data, which can be copied, compared and shown.
struct Tree {
    struct Member;

    /// A null pointer in place of a value.
    struct Nothing {
        bool operator==(Nothing const&) const = default;
    };

    /// A value of a type that the library never writes, `Null` or `Blob`.
    struct Other {
        std::string_view typeName;
        bool operator==(Other const&) const = default;
    };

    using List = std::vector<Tree>;
    using Map = std::vector<Member>; ///< in ascending byte order of keys

    std::variant<Nothing, Other, bool, int, double, std::string, List, Map> content;
};

struct Tree::Member {
    std::string key;
    Tree tree;
};

/// What that value, which may be null, holds.
Tree treeOf(zel::dataformats::data::Value const* value);

/// A new value that holds that, null for `Nothing`. An `Other` becomes a `Null`.
std::unique_ptr<zel::dataformats::data::Value> valueOf(Tree const& tree);

/// The first place where `got` is not what was expected, and what stands there: `[0].station.uri:
/// expected "a", got nothing`. Empty if there is none. Numbers must agree in every bit.
std::string difference(Tree const& expected, Tree const& got);

/// The tree on one line, close to JSON.
std::string describe(Tree const& tree);

} // namespace model
