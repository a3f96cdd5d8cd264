#include "generator/Output.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using kivgen::Page;

class Output : public testing::Test {
protected:
    Output()
    {
        std::string pattern = (fs::temp_directory_path() / "kivgen-output-XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
    }
    ~Output() override { fs::remove_all(m_folder); }

    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;

    [[nodiscard]] fs::path const& folder() const { return m_folder; }

    [[nodiscard]] std::string textOf(fs::path const& path) const
    {
        std::ifstream file(m_folder / path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static Page page(std::string const& path, std::string const& text)
    {
        return {path, std::string(kivgen::generatedMark) + text};
    }

private:
    fs::path m_folder;
};

TEST_F(Output, TouchesOnlyWhatChanged)
{
    kivgen::write({page("a/One.h", "1"), page("a/Two.h", "2")}, folder());
    auto const before = fs::last_write_time(folder() / "a/One.h") - std::chrono::hours(1);
    fs::last_write_time(folder() / "a/One.h", before);
    fs::last_write_time(folder() / "a/Two.h", before);

    auto const written = kivgen::write({page("a/One.h", "1"), page("a/Two.h", "3")}, folder());

    EXPECT_EQ(written.changed, 1U);
    EXPECT_EQ(fs::last_write_time(folder() / "a/One.h"), before);
    EXPECT_EQ(textOf("a/Two.h"), page("", "3").text);
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

TEST_F(Output, NamesWhatItCannotWriteAndLeavesTheRestWhole)
{
    kivgen::write({page("a/One.h", "1")}, folder());
    std::ofstream(folder() / "b") << "a file where a folder should be\n";

    try {
        kivgen::write({page("a/One.h", "1"), page("b/Two.h", "2")}, folder());
        FAIL() << "a file stands where a folder should be";
    } catch (std::runtime_error const& fault) {
        EXPECT_NE(std::string(fault.what()).find((folder() / "b").string()), std::string::npos)
            << fault.what();
    }
    EXPECT_EQ(textOf("a/One.h"), page("", "1").text);
    EXPECT_EQ(textOf("b"), "a file where a folder should be\n");
}

} // namespace
