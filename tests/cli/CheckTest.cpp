#include "Printed.h"
#include "check/Checker.h"
#include "check/Reading.h"
#include "frame/IResourceBase.h"
#include "tests/model/Tree.h"
#include "tools/sample/Sample.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// `check` must be true: it finds something lost, changed or invented in a document if and only if
/// what the library makes of it differs from it. Held on sample documents with a few things bent.
namespace {

using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;
using model::Tree;

Tree const* memberOf(Tree::Map const& map, std::string_view key)
{
    auto const found = std::ranges::find(map, key, &Tree::Member::key);
    return found == map.end() ? nullptr : &found->tree;
}

/// What a uri means as a nested value.
Tree written(std::string const& uri)
{
    std::string first;
    std::string second;
    std::string third;
    zel::kiv::common::getUriSplitted(uri, first, second, third);
    Tree::Map map;
    if (!third.empty()) {
        map.push_back({"id", Tree{third}});
    }
    map.push_back({"uri", Tree{uri}});
    return Tree{map};
}

Tree writtenOut(Resource const* resource, Tree const& tree);

Resource const* chosen(Field const& field, Tree::Map const& map)
{
    if (field.kind != Kind::Polymorphic) {
        return field.targets.front();
    }
    Tree const* const uri = memberOf(map, "uri");
    std::string const name = uri == nullptr ? "" : kiv::serviceAndResourceOf(*model::valueOf(*uri));
    auto const found = std::ranges::find_if(field.targets, [&](Resource const* each) {
        return each != nullptr &&
               std::string(each->service) + '/' + std::string(each->resourceKey) == name;
    });
    return found == field.targets.end() ? nullptr : *found;
}

Tree nestedWrittenOut(Field const& field, Tree const& tree)
{
    if (auto const* const uri = std::get_if<std::string>(&tree.content)) {
        return written(*uri);
    }
    auto const* const map = std::get_if<Tree::Map>(&tree.content);
    return map == nullptr ? tree : writtenOut(chosen(field, *map), tree);
}

Tree listWrittenOut(Field const& field, Tree const& tree)
{
    auto const* const list = std::get_if<Tree::List>(&tree.content);
    if (list == nullptr) {
        return tree;
    }
    Tree::List result;
    for (Tree const& entry : *list) {
        if (!std::holds_alternative<Tree::Nothing>(entry.content)) {
            result.push_back(isNested(field.kind) ? nestedWrittenOut(field, entry) : entry);
        }
    }
    return Tree{result};
}

/// The document with nulls left out and each uri that stands for an element written as one.
Tree writtenOut(Resource const* resource, Tree const& tree)
{
    Tree::Map result;
    for (auto const& [key, value] : std::get<Tree::Map>(tree.content)) {
        Field const* const field = resource == nullptr ? nullptr : resource->find(key);
        if (std::holds_alternative<Tree::Nothing>(value.content)) {
            continue;
        }
        if (field == nullptr || !(isNested(field->kind) || isList(field->kind))) {
            result.push_back({key, value});
        } else {
            result.push_back({key, isList(field->kind) ? listWrittenOut(*field, value)
                                                       : nestedWrittenOut(*field, value)});
        }
    }
    return Tree{result};
}

/// Whole numbers as integers: 5.0 is 5.
Tree plain(Tree const& tree)
{
    Tree result = tree;
    if (auto* const number = std::get_if<double>(&result.content)) {
        bool const whole =
            std::trunc(*number) == *number && std::abs(*number) <= std::numeric_limits<int>::max();
        return whole ? Tree{static_cast<int>(*number)} : result;
    }
    if (auto* const list = std::get_if<Tree::List>(&result.content)) {
        std::ranges::transform(*list, list->begin(), plain);
    }
    if (auto* const map = std::get_if<Tree::Map>(&result.content)) {
        for (auto& member : *map) {
            member.tree = plain(member.tree);
        }
    }
    return result;
}

/// Bends one thing somewhere in a tree.
class Bender {
public:
    explicit Bender(unsigned seed) : m_engine(seed) {}

    std::size_t below(std::size_t count) { return m_engine() % count; }

    void bend(Tree& tree)
    {
        auto* const list = std::get_if<Tree::List>(&tree.content);
        auto* const map = std::get_if<Tree::Map>(&tree.content);
        bool const isLeaf = (list == nullptr || list->empty()) && (map == nullptr || map->empty());
        if (isLeaf || below(list != nullptr ? 2 : 6) == 0) {
            tree = odd();
        } else if (list != nullptr) {
            bend((*list)[below(list->size())]);
        } else if (below(6) == 0) {
            (*map)[below(map->size())].key += "x";
            std::ranges::sort(*map, {}, &Tree::Member::key);
        } else {
            bend((*map)[below(map->size())].tree);
        }
    }

private:
    Tree odd()
    {
        static std::vector<Tree> const trees{
            Tree{Tree::Nothing{}},
            Tree{true},
            Tree{0},
            Tree{-7},
            Tree{2.5},
            Tree{4.0},
            Tree{1e12},
            Tree{std::string()},
            Tree{std::string("12")},
            Tree{std::string("/radio/stations/7")},
            Tree{std::string("/media/files/7")},
            Tree{std::string("/radio/stations")},
            Tree{std::string("radio/stations/7")},
            Tree{Tree::List{}},
            Tree{Tree::List{Tree{Tree::Nothing{}}}},
            Tree{Tree::List{Tree{1}, Tree{Tree::Nothing{}}, Tree{std::string("a")}}},
            Tree{Tree::Map{}},
            Tree{Tree::Map{{"id", Tree{std::string("7")}}}},
            Tree{Tree::Map{{"name", Tree{3}}, {"uri", Tree{std::string("/places/locations/1")}}}},
        };
        return trees[below(trees.size())];
    }

    std::mt19937 m_engine;
};

struct Checked {
    std::vector<kiv::Finding> findings;
    Tree input;
};

Checked checked(Resource const& resource, std::string const& text)
{
    Checked result;
    Tree::List entries;
    std::size_t at = 0;
    kiv::FindingHandler const handler = [&](kiv::Finding finding) {
        result.findings.push_back(std::move(finding));
    };
    kiv::json::readEntries(
        "document",
        [&](std::span<char> buffer) {
            std::size_t const size = text.copy(buffer.data(), buffer.size(), at);
            at += size;
            return size;
        },
        [&](kiv::json::Entry const& entry, kiv::json::Places const& places) {
            entries.push_back(model::treeOf(entry.value.get()));
            kiv::Checker(places, handler).check(resource, entry);
        });
    result.input = Tree{entries};
    return result;
}

std::string textOf(Tree const& tree, kiv::json::Layout layout)
{
    return kiv::printed([&](kiv::Output& output) {
        kiv::json::makeWriter(output, layout)->document(model::valueOf(tree).get());
    });
}

Tree fullOf(Resource const& resource, Tree const& input)
{
    auto const made = resource.makeResource();
    made->deserialize(model::valueOf(input).get());
    return model::treeOf(made->serialize().get());
}

bool has(std::vector<kiv::Finding> const& findings, std::initializer_list<kiv::Fate> fates)
{
    return std::ranges::any_of(findings, [&](kiv::Finding const& each) {
        return std::ranges::find(fates, each.fate) != fates.end();
    });
}

std::string differenceMade(Resource const& resource, Tree const& input)
{
    Tree::List expected;
    for (Tree const& entry : std::get<Tree::List>(input.content)) {
        bool const isMap = std::holds_alternative<Tree::Map>(entry.content);
        expected.push_back(isMap ? writtenOut(&resource, entry) : entry);
    }
    return model::difference(plain(Tree{expected}), plain(fullOf(resource, input)));
}

/// The text from the place of a finding on.
std::string_view textAt(std::string_view text, kiv::json::Position position)
{
    for (std::size_t line = 1; line < position.line; ++line) {
        text.remove_prefix(text.find('\n') + 1);
    }
    text.remove_prefix(std::min(position.column - 1, text.size()));
    return text;
}

/// Whether the place shows the key that the path ends with, or the beginning of a value.
bool isRealPlace(std::string_view text, kiv::Finding const& finding)
{
    std::string_view const there = textAt(text, finding.position);
    std::string const key = finding.path.substr(finding.path.rfind('.') + 1);
    if (finding.stands.starts_with("no key")) {
        return there.starts_with('"' + key + '"');
    }
    return !there.empty() &&
           std::string_view("\"-0123456789[{tfn").find(there.front()) != std::string_view::npos;
}

TEST(Check, FindsSomethingIfAndOnlyIfSomethingIsLostChangedOrInvented)
{
    Bender bender(20261121);
    std::size_t clean = 0;
    std::size_t bent = 0;
    for (Resource const& resource : kiv::catalogue::resources()) {
        for (int i = 0; i < 20; ++i) {
            Tree tree = model::treeOf(zel::kiv::sample::sampleOf(resource, i % 3).get());
            for (std::size_t bends = bender.below(4); bends > 0; --bends) {
                bender.bend(tree);
            }
            auto const layout =
                i % 2 == 0 ? kiv::json::Layout::Compact : kiv::json::Layout::Indented;
            std::string const text = textOf(Tree{Tree::List{tree}}, layout);
            Checked const result = checked(resource, text);
            if (has(result.findings, {kiv::Fate::Forbidden})) {
                continue;
            }
            bool const found =
                has(result.findings, {kiv::Fate::Lost, kiv::Fate::Changed, kiv::Fate::Invented});
            std::string const made = differenceMade(resource, result.input);
            ASSERT_EQ(found, !made.empty()) << resource.name << ": " << made << '\n' << text;
            for (kiv::Finding const& finding : result.findings) {
                ASSERT_TRUE(isRealPlace(text, finding)) << finding.path << '\n' << text;
            }
            ++(found ? bent : clean);
        }
    }
    EXPECT_GT(clean, 500U);
    EXPECT_GT(bent, 500U);
}

} // namespace
