#include "tests/model/Model.h"
#include "tests/model/Agreement.h"
#include "tests/roundtrip/Samples.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

/// The other tests are worth as much as the comparison and the model, so here these are tested.
namespace roundtrip {
namespace {

using model::difference;

Resource const& presets()
{
    return *zel::kiv::catalogue::find("radio", "presets");
}

/// A plain value that is not the same.
Tree altered(Tree const& plain)
{
    if (auto const* const flag = std::get_if<bool>(&plain.content)) {
        return {!*flag};
    }
    if (auto const* const number = std::get_if<int>(&plain.content)) {
        return {*number + 1};
    }
    if (auto const* const number = std::get_if<double>(&plain.content)) {
        return {std::nextafter(*number, 1e300)};
    }
    return {std::get<std::string>(plain.content) + ' '};
}

/// Calls `check` with the tree changed in one place, for each place and each way to change it.
void forEachChange(Tree& tree, std::function<void()> const& check)
{
    Tree const before = tree;
    for (Tree const& other :
         {Tree{Tree::Nothing{}}, Tree{Tree::Other{"Null"}}, Tree{Tree::Map{}}}) {
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
        std::swap(list->front(), list->back());
        check();
        std::swap(list->front(), list->back());
        for (Tree& entry : *list) {
            forEachChange(entry, check);
        }
    } else {
        tree = altered(before);
        check();
        tree = before;
    }
}

TEST(Comparison, findsEveryChange)
{
    Resource const* const stations = zel::kiv::catalogue::find("radio", "stations");
    Tree const expected = sampleOf(stations, 0, 1);
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
    EXPECT_EQ(difference({std::nan("")}, {std::nan("")}), "");
    EXPECT_NE(difference({1}, {1.0}), "");
    EXPECT_NE(difference({1}, {true}), "");
}

TEST(Comparison, saysWhereAndWhat)
{
    Tree const expected{Tree::List{{Tree::Map{{"a", {1}}, {"b", {std::string("x\"\n")}}}}}};
    Tree const got{Tree::List{{Tree::Map{{"a", {1}}, {"b", {std::string("y")}}}}}};
    Tree const less{Tree::List{{Tree::Map{{"a", {1}}}}}};
    EXPECT_EQ(difference(expected, got), R"([0].b: expected "x\"\x0a", got "y")");
    EXPECT_EQ(difference(got, less), R"([0].b: expected "y", not there)");
    EXPECT_EQ(difference(less, got), R"([0].b: not expected, got "y")");
    EXPECT_EQ(difference({1}, {Tree::Nothing{}}), "the whole: expected 1, got nothing");
    EXPECT_EQ(model::describe(model::treeOf(model::valueOf(expected).get())),
              R"([{"a":1,"b":"x\"\x0a"}])");
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
            EXPECT_NE(model::disagreement(expected.elements().front(), *element), "")
                << nameOf(resource) << " " << field.key;
            EXPECT_NE(model::disagreement(expected, *collection), "")
                << nameOf(resource) << " " << field.key;
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
    auto const model = model::modelOf(presets(), model::valueOf(given).get());
    ASSERT_EQ(model.elements().size(), 5U);
    EXPECT_EQ(
        model::describe(model.full()),
        R"([{"position":2,"station":{"id":"7","pi":12,"uri":"/radio/stations/7"},)"
        R"("uri":"/radio/presets/1"},{"station":{"id":"8","uri":"/media/files/8"}},{},{},{}])");
    EXPECT_EQ(model::describe(model.elements()[0].shallow()),
              R"({"position":2,"station":"/radio/stations/7","uri":"/radio/presets/1"})");
    EXPECT_EQ(model::describe(model.elements()[0].reference()), R"("/radio/presets/1")");
    EXPECT_EQ(model::describe(model.elements()[1].reference()), R"("")");
}

TEST(Model, choosesByWhatStandsBeforeTheSecondSlash)
{
    auto const& station = *presets().find("station");
    auto const chosen = [&](char const* uri) {
        auto const choice = model::choose(station, uri);
        return !choice.made ? "nothing" : choice.resource == nullptr ? "external" : "station";
    };
    for (char const* const uri : {"/radio/stations/7", "xradio/stations/", "/radio/stations/7/8"}) {
        EXPECT_STREQ(chosen(uri), "station") << uri;
    }
    for (char const* const uri : {"radio/stations/7", "/radio/presets/1", "//radio/stations/7",
                                  "/Radio/stations/7", "/a//", "///"}) {
        EXPECT_STREQ(chosen(uri), "external") << uri;
    }
    for (char const* const uri : {"", "/", "/radio", "/radio/stations", "radio/stations", "//"}) {
        EXPECT_STREQ(chosen(uri), "nothing") << uri;
    }
}

} // namespace
} // namespace roundtrip
