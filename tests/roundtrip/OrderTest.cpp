#include "tests/roundtrip/Samples.h"
#include "tests/unit/platform/Allocations.h"

#include "frame/IObjectBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

namespace roundtrip {
namespace {

/// Reads the value into the element with the allocation after the next `successes` failing. Tells
/// whether there was one to fail.
bool failsToRead(zel::kiv::common::IObjectBase& element, zel::dataformats::data::Value const& value,
                 std::size_t successes)
{
    allocations::failAfter(successes);
    try {
        element.deserialize(&value);
    } catch (std::bad_alloc const&) {
    }
    return allocations::stopFailing();
}

/// When memory runs out on the way, what was read before stays: so the keys that are set then tell
/// the order in which an element reads, which is that of its fields.
TEST(Order, fieldsAreReadInAscendingOrderOfTheirKeys)
{
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        auto const value = model::valueOf(sampleOf(&resource, 0, 1));
        auto element = resource.makeElement();
        for (std::size_t run = 0; failsToRead(*element, *value, run); ++run) {
            auto const set = std::get<Tree::Map>(fullOf(*element).content);
            for (std::size_t place = 0; place < set.size(); ++place) {
                ASSERT_EQ(set[place].key, resource.fields[place].key) << nameOf(resource);
            }
            element = resource.makeElement();
        }
        EXPECT_EQ(std::get<Tree::Map>(fullOf(*element).content).size(), resource.fields.size());
    }
}

} // namespace
} // namespace roundtrip
