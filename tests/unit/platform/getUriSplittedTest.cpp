#include "values/getUriSplitted.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(GetUriSplitted, HasServiceResourceAndIdOrLessThanThat)
{
    struct {
        char const* uri;
        char const* service;
        char const* resource;
        char const* id;
    } const cases[] = {
        {"/radio/stations/7", "radio", "stations", "7"},
        {"radio/stations/7", "radio", "stations", "7"},
        {"/a/b/id with:all?sorts", "a", "b", "id with:all?sorts"},
        {"/a/b/7/x", "a", "b", "7"},
        {"/a/b/7/", "a", "b", "7"},
        {"/a/b//7", "a", "b", ""},
        {"", "", "", ""},
        {"/", "", "", ""},
        {"/a", "a", "", ""},
        {"/a/b", "a", "b", ""},
        {"/a/b/", "a", "b", ""},
        {"a/b", "a", "b", ""},
        {"//a/b", "", "a", "b"},
    };
    for (auto const& each : cases) {
        std::string service = "left";
        std::string resource = "over";
        std::string id = "text";
        zel::kiv::common::getUriSplitted(each.uri, service, resource, id);
        EXPECT_EQ(service, each.service) << each.uri;
        EXPECT_EQ(resource, each.resource) << each.uri;
        EXPECT_EQ(id, each.id) << each.uri;
    }
}

} // namespace
