#include "tests/model/Agreement.h"
#include "tests/roundtrip/Samples.h"

#include "frame/IObjectBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace roundtrip {
namespace {

using model::difference;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::resources;

/// An object with that under each key of the element for which `wants` says so.
template <typename Wants>
Tree everywhere(Resource const& resource, Tree const& tree, Wants wants)
{
    Tree::Map map;
    for (Field const& field : resource.fields) {
        if (wants(field.kind)) {
            map.push_back({std::string(field.key), tree});
        }
    }
    return {map};
}

bool always(Kind /*kind*/)
{
    return true;
}

TEST(WrongTypes, anIntegerUnderEveryKey)
{
    for (Resource const& resource : resources()) {
        Tree::Map expected;
        for (Field const& field : resource.fields) {
            std::string const key(field.key);
            switch (field.kind) {
            case Kind::String:
                expected.push_back({key, {std::string("7")}});
                break;
            case Kind::Int:
                expected.push_back({key, {7}});
                break;
            case Kind::Double:
                expected.push_back({key, {7.0}});
                break;
            case Kind::Bool:
                expected.push_back({key, {true}});
                break;
            case Kind::Element:
            case Kind::External:
                expected.push_back({key, {Tree::Map{}}}); // there, and empty
                break;
            default:
                break; // lists are skipped, and nothing selects a polymorphic target
            }
        }
        auto const element = elementFrom(resource, everywhere(resource, {7}, always));
        EXPECT_EQ(difference({expected}, fullOf(*element)), "") << nameOf(resource);
    }
}

TEST(WrongTypes, nothingUnderEveryKeyAndInEveryListIsNotThere)
{
    using zel::kiv::catalogue::isList;
    Tree const nothing{Tree::Nothing{}};
    for (Resource const& resource : resources()) {
        for (Tree const& given :
             {everywhere(resource, nothing, always),
              everywhere(resource, {Tree::List{nothing, nothing, nothing}}, isList),
              everywhere(resource, {Tree::List{}}, isList)}) {
            EXPECT_EQ(difference({Tree::Map{}}, fullOf(*elementFrom(resource, given))), "")
                << nameOf(resource);
        }
    }
}

/// What `Ref` makes of each type is the value library's matter, so the model asks it as well.
TEST(WrongTypes, everyTypeUnderEveryKeyAndInEveryList)
{
    std::vector<Tree> const types{
        {Tree::Nothing{}},
        {Tree::Other{"Null"}},
        {true},
        {-7},
        {2.5},
        {std::string("12")},
        {std::string("/radio/stations/7")},
        {Tree::List{{3}, {Tree::Nothing{}}, {std::string("/a/b/c")}}},
        {Tree::Map{{"id", {3}}, {"speed", {50}}}},
        {Tree::Map{{"uri", {std::string("/radio/stations/7")}}}},
    };
    for (Resource const& resource : resources()) {
        for (Tree const& type : types) {
            for (Tree const& under : {type, Tree{Tree::List{type, {Tree::Nothing{}}, type}}}) {
                Tree const entry = everywhere(resource, under, always);
                auto const value = model::valueOf({Tree::List{entry, under, type}});
                EXPECT_EQ(model::disagreement(resource, value.get()), "")
                    << nameOf(resource) << " " << model::describe(under);
                EXPECT_EQ(model::disagreement(resource, model::valueOf(type).get()), "")
                    << nameOf(resource) << " " << model::describe(type);
            }
        }
    }
}

/// Texts and numbers are overwritten, elements replaced, lists grow.
TEST(WrongTypes, aSecondCallWorksOnWhatIsThere)
{
    for (Resource const& resource : resources()) {
        for (std::size_t variant = 0; variant < variantsOf(resource); ++variant) {
            auto const value = model::valueOf({Tree::List{sampleOf(&resource, variant, 1)}});
            EXPECT_EQ(model::disagreement(resource, value.get(), 2), "") << nameOf(resource);
        }
        auto const nulls = model::valueOf(everywhere(resource, {Tree::Nothing{}}, always));
        Tree const sample = sampleOf(&resource, 0, 1);
        auto const element = elementFrom(resource, sample);
        element->deserialize(nulls.get());
        EXPECT_EQ(difference(sample, fullOf(*element)), "") << nameOf(resource);
    }
}

} // namespace
} // namespace roundtrip
