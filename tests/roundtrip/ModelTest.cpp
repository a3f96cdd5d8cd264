#include "tests/model/Model.h"
#include "tests/model/Agreement.h"
#include "tests/model/Samples.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

/// The other tests are worth as much as the comparison and the model, so here these are tested.
namespace {

using namespace samples;
using model::difference;

/// Calls `check` with the tree changed in one place, for each place and each way to change it.
void forEachChange(Tree& tree, std::function<void()> const& check)
{
    Tree const before = tree;
    for (Tree const& other : {Tree{Tree::Nothing{}}, Tree{Tree::Other{"Null"}}, Tree{Tree::Map{}},
                              Tree{77}, Tree{7.25}, Tree{std::string("~")}}) {
        tree = other;
        check();
    }
    tree = before;
    if (auto* const map = std::get_if<Tree::Map>(&tree.content)) {
        for (std::size_t place = 0; place < map->size(); ++place) {
            Tree::Member const member = (*map)[place];
            map->erase(map->begin() + static_cast<std::ptrdiff_t>(place));
            check();
            map->insert(map->begin() + static_cast<std::ptrdiff_t>(place), member);
            (*map)[place].key += '~';
            check();
            (*map)[place].key = member.key;
            forEachChange((*map)[place].tree, check);
        }
    } else if (auto* const list = std::get_if<Tree::List>(&tree.content)) {
        list->push_back(list->back());
        check();
        list->pop_back();
        for (Tree& entry : *list) {
            forEachChange(entry, check);
        }
    } else if (auto* const flag = std::get_if<bool>(&tree.content)) {
        *flag = !*flag;
        check();
        *flag = !*flag;
    }
}

TEST(Comparison, findsEveryChangeAndSaysWhere)
{
    Tree const expected = sampleOf(zel::kiv::catalogue::find("radio", "stations"), 1, 1);
    Tree got = expected;
    std::size_t changes = 0;
    forEachChange(got, [&] {
        ++changes;
        EXPECT_NE(difference(expected, got), "") << model::describe(got);
        EXPECT_NE(difference(got, expected), "") << model::describe(got);
    });
    EXPECT_GT(changes, 1000U);
    EXPECT_EQ(difference(expected, got), "");
    EXPECT_NE(difference({0.0}, {-0.0}), "");
    EXPECT_NE(difference({1}, {1.0}), "");

    Tree const one{Tree::List{{Tree::Map{{"a", {1}}, {"b", {std::string("x\"\n")}}}}}};
    Tree const less{Tree::List{{Tree::Map{{"a", {1}}}}}};
    EXPECT_EQ(difference(one, less), R"([0].b: expected "x\"\x0a", not there)");
    EXPECT_EQ(difference(less, one), R"([0].b: not expected, got "x\"\x0a")");
}

/// The library is right where the model is told something else.
TEST(Agreement, failsWhenTheExpectationIsWrong)
{
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        Tree const sample = sampleOf(&resource, 0, 1);
        auto const element = elementFrom(resource, sample);
        auto const collection = resource.makeResource();
        collection->deserialize(model::valueOf({Tree::List{sample}}).get());
        for (Field const& field : resource.fields) {
            Tree::Map other = std::get<Tree::Map>(sample.content);
            std::erase_if(other, [&](auto const& each) { return each.key == field.key; });
            auto const value = model::valueOf({Tree::List{{other}}});
            auto const expected = model::modelOf(resource, value.get());
            EXPECT_NE(model::disagreement(expected.elements().front(), *element), "") << field.key;
            EXPECT_NE(model::disagreement(expected, *collection), "") << field.key;
        }
        auto const none = model::modelOf(resource, nullptr);
        EXPECT_EQ(model::disagreement(none, *collection), "expected 0 elements, got 1");
    }
}

/// Worked out by hand.
TEST(Model, predictsAPreset)
{
    Tree::Map const station{{"id", {7}},
                            {"pi", {std::string("12")}},
                            {"speed", {50}},
                            {"uri", {std::string("/radio/stations/7")}}};
    Tree const given{Tree::List{
        {Tree::Map{{"name", {Tree::Nothing{}}},
                   {"position", {2.9}},
                   {"station", {station}},
                   {"uri", {std::string("/radio/presets/1")}}}},
        {Tree::Map{{"station", {std::string("/media/files/8")}}}},
        {Tree::Map{{"station", {std::string("/radio/stations")}}}},
        {std::string("/radio/presets/1")},
        {Tree::Nothing{}},
    }};
    auto const model =
        model::modelOf(*zel::kiv::catalogue::find("radio", "presets"), model::valueOf(given).get());
    EXPECT_EQ(
        model::describe(model.full()),
        R"([{"position":2,"station":{"id":"7","pi":12,"uri":"/radio/stations/7"},)"
        R"("uri":"/radio/presets/1"},{"station":{"id":"8","uri":"/media/files/8"}},{},{},{}])");
    EXPECT_EQ(model::describe(model.elements().front().shallow()),
              R"({"position":2,"station":"/radio/stations/7","uri":"/radio/presets/1"})");
    EXPECT_EQ(model::describe(model.elements().front().reference()), R"("/radio/presets/1")");
}

} // namespace
