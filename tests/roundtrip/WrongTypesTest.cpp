#include "tests/model/Agreement.h"
#include "tests/model/Samples.h"

#include "frame/IObjectBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace samples;
using zel::kiv::catalogue::resources;

/// An object with that under each key of the element.
Tree everywhere(Resource const& resource, Tree const& tree)
{
    Tree::Map map;
    for (Field const& field : resource.fields) {
        map.push_back({std::string(field.key), tree});
    }
    return {map};
}

/// What `Ref` makes of each type is the value library's matter, so the model asks it as well.
TEST(WrongTypes, everyTypeUnderEveryKeyAndInEveryList)
{
    std::vector<Tree> const types{
        {Tree::Nothing{}},
        {Tree::Other{"Null"}},
        {true},
        {0},
        {-7},
        {2.5},
        {std::string()},
        {std::string("12")},
        {std::string("/radio/stations/7")},
        {Tree::List{}},
        {Tree::List{{3}, {Tree::Nothing{}}, {std::string("/a/b/c")}}},
        {Tree::Map{{"id", {3}}, {"speed", {50}}}},
        {Tree::Map{{"uri", {std::string("/radio/stations/7")}}}},
    };
    for (Resource const& resource : resources()) {
        for (Tree const& type : types) {
            for (Tree const& under : {type, Tree{Tree::List{type, {Tree::Nothing{}}, type}}}) {
                Tree const entry = everywhere(resource, under);
                auto const value = model::valueOf({Tree::List{entry, under, type}});
                EXPECT_EQ(model::disagreement(resource, value.get()), "")
                    << nameOf(resource) << " " << model::describe(under);
                EXPECT_EQ(model::disagreement(resource, model::valueOf(type).get()), "")
                    << nameOf(resource) << " " << model::describe(type);
            }
        }
    }
}

/// Texts and numbers are overwritten, elements replaced, lists grow; null changes nothing.
TEST(WrongTypes, aSecondCallWorksOnWhatIsThere)
{
    for (Resource const& resource : resources()) {
        for (std::size_t variant = 0; variant < variantsOf(resource); ++variant) {
            auto const value = model::valueOf({Tree::List{sampleOf(&resource, variant, 1)}});
            EXPECT_EQ(model::disagreement(resource, value.get(), 2), "") << nameOf(resource);
        }
        Tree const sample = sampleOf(&resource, 0, 1);
        auto const element = elementFrom(resource, sample);
        element->deserialize(model::valueOf(everywhere(resource, {Tree::Nothing{}})).get());
        EXPECT_EQ(model::difference(sample, fullOf(*element)), "") << nameOf(resource);
    }
}

} // namespace
