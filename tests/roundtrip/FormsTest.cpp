#include "tests/model/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

/// Every resource of the interface, filled to the last field.
namespace {

using namespace samples;
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

/// When memory runs out on the way, what was read before stays: so the keys that are set then tell
/// the order in which an element reads, which is that of its fields.
TEST(Order, fieldsAreReadInAscendingOrderOfTheirKeys)
{
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        auto const value = model::valueOf(sampleOf(&resource, 0, 1));
        auto element = resource.makeElement();
        auto const keysSet = [&] { return std::get<Tree::Map>(fullOf(*element).content); };
        allocations::failEach([&] { element->deserialize(value.get()); },
                              [&] {
                                  Tree::Map const set = keysSet();
                                  for (std::size_t place = 0; place < set.size(); ++place) {
                                      ASSERT_EQ(set[place].key, resource.fields[place].key)
                                          << nameOf(resource);
                                  }
                                  element = resource.makeElement();
                              });
        EXPECT_EQ(keysSet().size(), resource.fields.size());
    }
}

} // namespace
