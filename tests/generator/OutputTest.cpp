#include "generator/Output.h"
#include "Folder.h"

#include <chrono>

namespace generator_test {
namespace {

using kivgen::Page;

class Output : public InFolder {};

Page page(std::string const& path, std::string const& text)
{
    return {path, std::string(kivgen::generatedMark) + text};
}

TEST_F(Output, TouchesOnlyWhatChanged)
{
    kivgen::write({page("a/One.h", "1"), page("a/Two.h", "2")}, folder());
    auto const before = fs::last_write_time(folder() / "a/One.h") - std::chrono::hours(1);
    fs::last_write_time(folder() / "a/One.h", before);

    auto const written = kivgen::write({page("a/One.h", "1"), page("a/Two.h", "3")}, folder());

    EXPECT_EQ(written.changed, 1U);
    EXPECT_EQ(fs::last_write_time(folder() / "a/One.h"), before);
    EXPECT_EQ(textOf(folder() / "a/Two.h"), page("", "3").text);
}

TEST_F(Output, RemovesWhatNoPageStandsForAndNothingElse)
{
    kivgen::write({page("a/Old.h", "1"), page("a/Kept.h", "1")}, folder());
    std::ofstream(folder() / "a/notes.txt") << "written by a person\n";

    auto const written = kivgen::write({page("a/Kept.h", "1")}, folder());

    EXPECT_EQ(written.removed, 1U);
    EXPECT_FALSE(fs::exists(folder() / "a/Old.h"));
    EXPECT_TRUE(fs::exists(folder() / "a/Kept.h"));
    EXPECT_TRUE(fs::exists(folder() / "a/notes.txt"));
}

} // namespace
} // namespace generator_test
