#include "tests/roundtrip/Samples.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

/// Every resource of the interface, filled to the last field.
namespace roundtrip {
namespace {

using model::difference;

template <typename Check>
void forEachVariant(Check check)
{
    ASSERT_FALSE(zel::kiv::catalogue::resources().empty());
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        SCOPED_TRACE(nameOf(resource));
        for (std::size_t variant = 0; variant < variantsOf(resource); ++variant) {
            check(resource, variant);
        }
    }
}

TEST(Forms, objectsComeBackInFullAsUrisAndAsReference)
{
    forEachVariant([](Resource const& resource, std::size_t variant) {
        Tree const given = sampleOf(&resource, variant, 2);
        auto const element = elementFrom(resource, given);
        EXPECT_EQ(difference(given, fullOf(*element)), "");
        EXPECT_EQ(difference(withUris(resource, given), shallowOf(*element)), "");
        EXPECT_EQ(difference(memberOf(given, "uri"), referenceOf(*element)), "");
    });
}

TEST(Forms, urisBecomeElementsWithIdAndUri)
{
    forEachVariant([](Resource const& resource, std::size_t variant) {
        Tree const given = withUris(resource, sampleOf(&resource, variant, 1));
        auto const element = elementFrom(resource, given);
        EXPECT_EQ(difference(withReferences(resource, given), fullOf(*element)), "");
        EXPECT_EQ(difference(given, shallowOf(*element)), "");
    });
}

TEST(Forms, resourcesKeepTheirElementsInOrderAndAppend)
{
    forEachVariant([](Resource const& resource, std::size_t variant) {
        auto const collection = resource.makeResource();
        EXPECT_EQ(difference({Tree::List{}}, model::treeOf(collection->serialize().get())), "");

        Tree const first = sampleOf(&resource, variant, 1);
        Tree const second = sampleOf(&resource, variant + 1, 1);
        auto const value = model::valueOf({Tree::List{first, second}});
        collection->deserialize(value.get());
        collection->deserialize(value.get());
        EXPECT_EQ(collection->getNumberOfElements(), 4U);
        EXPECT_EQ(difference({Tree::List{first, second, first, second}},
                             model::treeOf(collection->serialize().get())),
                  "");
    });
}

/// Each field is written if and only if it was set, whatever its neighbours are.
TEST(Forms, eachFieldStandsAlone)
{
    forEachVariant([](Resource const& resource, std::size_t variant) {
        EXPECT_EQ(difference({Tree::Map{}}, fullOf(*resource.makeElement())), "");
        EXPECT_EQ(difference({Tree::Map{}}, shallowOf(*resource.makeElement())), "");
        EXPECT_EQ(difference({std::string()}, referenceOf(*resource.makeElement())), "");
        Tree::Map const all = std::get<Tree::Map>(sampleOf(&resource, variant, 1).content);
        for (std::size_t place = 0; place < all.size(); ++place) {
            Tree::Map rest = all;
            rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(place));
            EXPECT_EQ(difference({rest}, fullOf(*elementFrom(resource, {rest}))), "");
            Tree const alone{Tree::Map{all[place]}};
            EXPECT_EQ(difference(alone, fullOf(*elementFrom(resource, alone))), "");
        }
    });
}

TEST(Forms, zeroValuesArePresent)
{
    using zel::kiv::catalogue::Kind;
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        Tree::Map zeros;
        for (Field const& field : resource.fields) {
            switch (field.kind) {
            case Kind::String:
                zeros.push_back({std::string(field.key), {std::string()}});
                break;
            case Kind::Int:
                zeros.push_back({std::string(field.key), {0}});
                break;
            case Kind::Double:
                zeros.push_back({std::string(field.key), {0.0}});
                break;
            case Kind::Bool:
                zeros.push_back({std::string(field.key), {false}});
                break;
            default:
                break;
            }
        }
        EXPECT_EQ(difference({zeros}, fullOf(*elementFrom(resource, {zeros}))), "")
            << nameOf(resource);
    }
}

} // namespace
} // namespace roundtrip
