#include "catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace catalogue = zel::kiv::catalogue;

/// A row lost or doubled, or a kind mistaken, shows here first. The last number is of all rows with
/// their keys and targets: whoever changes a row on purpose takes over the number that it gets.
TEST(Interface, hasAllItsServicesResourcesAndFields)
{
    std::set<std::string_view> services;
    std::size_t fields = 0;
    std::size_t owningSetters = 0;
    std::array<std::size_t, catalogue::kindWords.size()> ofKind{};
    std::uint32_t sum = 0;
    auto const add = [&sum](std::string_view word) {
        for (char const each : word) {
            sum = sum * 31 + static_cast<unsigned char>(each);
        }
    };
    for (auto const& resource : catalogue::resources()) {
        services.insert(resource.service);
        fields += resource.fields.size();
        for (auto const word : {resource.service, resource.resourceKey, resource.elementKey}) {
            add(word);
        }
        for (auto const& field : resource.fields) {
            add(field.key);
            add(catalogue::wordOf(field.kind));
            for (auto const* const target : field.targets) {
                add(target->isExternal() ? "external" : target->name);
            }
            ++ofKind.at(static_cast<std::size_t>(field.kind));
            for (auto const& accessor : field.accessors) {
                owningSetters += accessor.purpose == catalogue::Purpose::Set &&
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
    EXPECT_EQ(sum, 2908613260U);
}

/// No call shows the texts that the visitors note, so they are looked for in the library's file.
TEST(Texts, areAllInTheLibrary)
{
    std::ifstream stream(ZEL_KIV_LIBRARY, std::ios::binary);
    std::stringstream content;
    content << stream.rdbuf();
    std::string const file = content.str();
    std::vector<std::string> texts{"Element must contain object data! Data is 'Array'\n",
                                   "Resource must contain array data! Data is 'Object'\n"};
    for (char const* const type : {"NULL", "Boolean ", "Integer", "Float", "String", "Blob"}) {
        texts.push_back(std::string("Element must contain object data! Data is '") + type + "'\n");
        texts.push_back(std::string("Resource must contain object data! Data is '") + type + "'\n");
    }
    // The text of a step that never runs, one for each resource.
    for (auto const& resource : catalogue::resources()) {
        texts.push_back("Error while deserializing array into '" + std::string(resource.name) +
                        "::" + std::string(resource.element) + "'-object!\n");
    }
    for (std::string const& text : texts) {
        EXPECT_NE(file.find(text + '\0'), std::string::npos) << text;
    }
}

} // namespace
