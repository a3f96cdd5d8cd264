#include "generator/Printer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

TEST(Printer, StopsAtASlotThatNothingFills)
{
    EXPECT_EQ(kivgen::fill("$a$$b$", {{"a", "1"}, {"b", ""}}).at(0), "1\n");
    EXPECT_THROW(static_cast<void>(kivgen::fill("$name$", {}).at(0)), std::logic_error);
    EXPECT_THROW(static_cast<void>(kivgen::fill("costs 5$", {{"name", ""}}).at(0)),
                 std::logic_error);
}

TEST(Printer, BreaksOnlyWhereTheLineIsFullAndNoWordInTwo)
{
    std::string const monster(120, 'y');
    EXPECT_EQ(kivgen::comment(monster).at(0), "/// " + monster + "\n");
    // To the last column, and one beyond it.
    std::string const rest(100 - 4 - 5 - 2, 'r');
    EXPECT_EQ(
        kivgen::fill("    $call$", {{"call", kivgen::wrapped("call(", {rest}, ",", ");")}}).at(0),
        "    call(" + rest + ");\n");
    EXPECT_EQ(kivgen::wrapped("call(", {rest + 'r'}, ",", ");").at(4),
              "    call(\n        " + rest + "r);\n");
    std::string const second(100 - 8 - 2, 's');
    EXPECT_EQ(kivgen::wrapped("call(", {"a", second}, ",", ");").at(0),
              "call(a, " + second + ");\n");
    EXPECT_EQ(kivgen::wrapped("call(", {"a", second + 's'}, ",", ");").at(0),
              "call(a,\n     " + second + "s);\n");
}

} // namespace
