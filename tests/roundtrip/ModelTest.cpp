#include "tests/model/Model.h"
#include "tests/model/Agreement.h"
#include "tests/model/Samples.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// The other tests are worth as much as the comparison and the model, so here these are tested.
namespace {

using namespace samples;
using model::difference;

TEST(Comparison, findsEveryChangeAndSaysWhere)
{
    Tree const yes{true};
    Tree const text{std::string("x\"y")};
    Tree const one{Tree::List{{Tree::Map{{"a", {1}}, {"b", text}}}}};
    std::vector<Tree> const trees{{Tree::Nothing{}},
                                  {Tree::Other{"Null"}},
                                  {Tree::Other{"Blob"}},
                                  yes,
                                  {false},
                                  {0},
                                  {1},
                                  {0.0},
                                  {-0.0},
                                  {1.0},
                                  {1.0000000000000002},
                                  text,
                                  {std::string()},
                                  {Tree::List{}},
                                  {Tree::List{yes}},
                                  {Tree::List{yes, text}},
                                  {Tree::List{text, yes}},
                                  {Tree::Map{}},
                                  {Tree::Map{{"a", {1}}}},
                                  {Tree::Map{{"a", {2}}}},
                                  {Tree::Map{{"b", {1}}}},
                                  {Tree::Map{{"a", {1}}, {"b", {1}}}},
                                  one};
    for (Tree const& expected : trees) {
        for (Tree const& got : trees) {
            EXPECT_EQ(difference(expected, got).empty(), &expected == &got)
                << model::describe(expected) << model::describe(got);
        }
    }
    Tree const less{Tree::List{{Tree::Map{{"a", {1}}}}}};
    EXPECT_EQ(difference(one, less), R"([0].b: expected "x\"y", not there)");
    EXPECT_EQ(difference(less, one), R"([0].b: not expected, got "x\"y")");
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
