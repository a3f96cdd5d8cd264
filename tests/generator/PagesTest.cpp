#include "generator/pages/Pages.h"
#include "generator/model/Loader.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

fs::path const goldenFolder = fs::path(KIVGEN_TEST_DATA) / "golden";

std::string textOf(fs::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<kivgen::Page> pagesOfGood()
{
    auto const loaded = kivgen::load(fs::path(KIVGEN_TEST_DATA) / "good" / "services");
    EXPECT_TRUE(loaded.faults.empty());
    return kivgen::allPages(loaded.interface);
}

// With UPDATE_GOLDEN set the files are written instead of compared; what then differs is to be read
// in the version control before it is taken.
TEST(Pages, AreAsTheGoldenFilesShow)
{
    for (kivgen::Page const& page : pagesOfGood()) {
        fs::path const path = goldenFolder / page.path;
        if (std::getenv("UPDATE_GOLDEN") != nullptr) {
            fs::create_directories(path.parent_path());
            std::ofstream(path, std::ios::binary) << page.text;
        }
        EXPECT_EQ(page.text, textOf(path)) << page.path;
    }
}

TEST(Pages, AreAFunctionOfTheDefinitionsAlone)
{
    auto const first = pagesOfGood();
    auto const second = pagesOfGood();
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(first[i].path, second[i].path);
        EXPECT_EQ(first[i].text, second[i].text);
    }
}

} // namespace
