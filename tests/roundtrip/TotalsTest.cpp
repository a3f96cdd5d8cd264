#include "catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string_view>

namespace {

namespace catalogue = zel::kiv::catalogue;

/// A row lost or doubled, or a kind mistaken, shows here first.
TEST(Interface, hasAllItsServicesResourcesAndFields)
{
    std::set<std::string_view> services;
    std::size_t fields = 0;
    std::size_t owningSetters = 0;
    std::array<std::size_t, catalogue::kindWords.size()> ofKind{};
    for (auto const& resource : catalogue::resources()) {
        services.insert(resource.service);
        fields += resource.fields.size();
        for (auto const& field : resource.fields) {
            ++ofKind.at(static_cast<std::size_t>(field.kind));
            for (auto const& accessor : field.accessors) {
                owningSetters += accessor.name.starts_with("set") &&
                                         accessor.signature.find("unique_ptr") != std::string::npos
                                     ? 1
                                     : 0;
            }
        }
    }
    EXPECT_EQ(services.size(), 32U);
    EXPECT_EQ(catalogue::resources().size(), 181U);
    EXPECT_EQ(fields, 1669U);
    EXPECT_EQ(owningSetters, 266U);
    // In the order of the kinds: string, int, double, bool, string list, int list, element, element
    // list, external, external list, polymorphic.
    std::array<std::size_t, catalogue::kindWords.size()> const expected{1023, 116, 67, 87, 41, 5,
                                                                        195,  84,  36, 1,  14};
    EXPECT_EQ(ofKind, expected);
}

} // namespace
