#include "values/getUriSplitted.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

using Parts = std::tuple<std::string, std::string, std::string>;

Parts split(std::string const& uri)
{
    Parts parts{"left", "over", "text"};
    zel::kiv::common::getUriSplitted(uri, std::get<0>(parts), std::get<1>(parts),
                                     std::get<2>(parts));
    return parts;
}

TEST(Uri, HasServiceResourceAndId)
{
    EXPECT_EQ(split("/radio/stations/7"), Parts("radio", "stations", "7"));
    EXPECT_EQ(split("radio/stations/7"), Parts("radio", "stations", "7"));
    EXPECT_EQ(split("/a/b/id with:all?sorts"), Parts("a", "b", "id with:all?sorts"));
}

TEST(Uri, EndsTheIdAtTheNextSlash)
{
    EXPECT_EQ(split("/a/b/7/x"), Parts("a", "b", "7"));
    EXPECT_EQ(split("/a/b/7/"), Parts("a", "b", "7"));
    EXPECT_EQ(split("/a/b//7"), Parts("a", "b", ""));
}

TEST(Uri, LeavesMissingPartsEmpty)
{
    EXPECT_EQ(split(""), Parts("", "", ""));
    EXPECT_EQ(split("/"), Parts("", "", ""));
    EXPECT_EQ(split("/a"), Parts("a", "", ""));
    EXPECT_EQ(split("/a/b"), Parts("a", "b", ""));
    EXPECT_EQ(split("/a/b/"), Parts("a", "b", ""));
    EXPECT_EQ(split("a/b"), Parts("a", "b", ""));
    EXPECT_EQ(split("//a/b"), Parts("", "a", "b"));
}

} // namespace
