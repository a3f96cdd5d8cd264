#include "generator/Printer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using kivgen::fill;

TEST(Printer, FillsSlotsAndDropsLinesThatStayEmpty)
{
    EXPECT_EQ(fill("\nclass $name$ {\n$body$\n$none$\n};\n",
                   {{"name", "Preset"}, {"body", "    int x;\n    int y;\n"}, {"none", ""}}),
              "class Preset {\n    int x;\n    int y;\n};\n");
    EXPECT_EQ(fill("$a$$b$", {{"a", "1"}, {"b", ""}}), "1\n");
}

TEST(Printer, StopsAtASlotThatNothingFills)
{
    EXPECT_THROW(fill("$name$", {}), std::logic_error);
    EXPECT_THROW(fill("costs 5$", {{"name", ""}}), std::logic_error);
}

TEST(Printer, BreaksCommentsBetweenWords)
{
    std::string const word(60, 'x');
    EXPECT_EQ(kivgen::comment(word + " short " + word, 4),
              "    /// " + word + " short\n    /// " + word + "\n");
    // A word that no line could hold stays whole.
    std::string const monster(120, 'y');
    EXPECT_EQ(kivgen::comment(monster, 0), "/// " + monster + "\n");
}

TEST(Printer, BreaksListsOnlyWhereTheLineIsFull)
{
    EXPECT_EQ(kivgen::wrapped(4, "call(", {"a", "b"}, ",", ");"), "    call(a, b);\n");
    std::string const item(50, 'i');
    EXPECT_EQ(kivgen::wrapped(4, "call(", {item, item}, ",", ");"),
              "    call(" + item + ",\n         " + item + ");\n");
    // To the last column, and one beyond it.
    std::string const rest(100 - 4 - 5 - 2, 'r');
    EXPECT_EQ(kivgen::wrapped(4, "call(", {rest}, ",", ");"), "    call(" + rest + ");\n");
    EXPECT_EQ(kivgen::wrapped(4, "call(", {rest + 'r'}, ",", ");"),
              "    call(\n        " + rest + "r);\n");
}

} // namespace
