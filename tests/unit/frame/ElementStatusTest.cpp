#include "frame/ElementStatus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace zel::kiv::common;

/// Read while this file is initialised: the tables must be complete before any client's code runs.
std::string const earlyText = ELEMENTSTATUSANDSTRINGMAP.at(ElementStatus::Ongoing);

TEST(ElementStatus, tablesLeadToEachOther)
{
    std::vector<std::string> const texts{
        "created",           "serviceReady",         "pending", "ongoing", "clientReady",
        "serviceSuccessful", "serviceNotSuccessful", "failed"};
    ASSERT_EQ(ELEMENTSTATUSANDSTRINGMAP.size(), 8U);
    ASSERT_EQ(STRINGANDELEMENTSTATUSMAP.size(), 8U);
    int number = 0;
    for (std::string const& text : texts) {
        auto const status = static_cast<ElementStatus>(number++);
        EXPECT_EQ(ELEMENTSTATUSANDSTRINGMAP.at(status), text);
        EXPECT_EQ(STRINGANDELEMENTSTATUSMAP.at(text), status);
    }
    EXPECT_EQ(STRINGANDELEMENTSTATUSMAP.count("Created"), 0U);
    EXPECT_EQ(earlyText, "ongoing");
    // The numbers are part of the interface, the names lead to them.
    EXPECT_EQ(static_cast<int>(ElementStatus::ClientReady), 4);
    EXPECT_EQ(static_cast<int>(ElementStatus::ServiceNotSuccessful), 6);
}

} // namespace
