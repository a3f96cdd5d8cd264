#include "tools/kiv/Progress.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kiv {
namespace {

TEST(Progress, drawsEachPercentOnceAndWipesItself)
{
    std::vector<std::string> drawn;
    auto bar = std::make_unique<Progress>(
        "f.json", 1000000, [&drawn](std::string_view text) { drawn.emplace_back(text); });
    for (int i = 0; i < 1000; ++i) {
        bar->advance(500);
    }

    EXPECT_EQ(drawn.size(), 51U) << "from 0 to 50 percent or so";
    EXPECT_EQ(drawn.front(), "\r\x1b[Kf.json [                              ] 0%");
    EXPECT_TRUE(drawn.back().ends_with("[###############               ] 50%")) << drawn.back();
    bar->advance(0);
    EXPECT_EQ(drawn.back(), "\r\x1b[K");

    bar->advance(2000000); // more than there was when it began
    EXPECT_TRUE(drawn.back().ends_with("#] 100%")) << drawn.back();
    bar.reset(); // as after a fault in the middle of a file
    EXPECT_EQ(drawn.back(), "\r\x1b[K");
}

} // namespace
} // namespace kiv
