#include "generator/pages/Pages.h"
#include "Folder.h"
#include "generator/model/Loader.h"

namespace generator_test {
namespace {

// With UPDATE_GOLDEN set the files are written instead of compared; what then differs is to be read
// in the version control before it is taken.
TEST(Pages, AreAsTheGoldenFilesShow)
{
    fs::path const folder = KIVGEN_TEST_DATA;
    auto const loaded = kivgen::load(folder / "good" / "services");
    ASSERT_TRUE(loaded.faults.empty());
    for (kivgen::Page const& page : kivgen::allPages(loaded.interface)) {
        fs::path const path = folder / "golden" / page.path;
        if (std::getenv("UPDATE_GOLDEN") != nullptr) {
            fs::create_directories(path.parent_path());
            std::ofstream(path, std::ios::binary) << page.text;
        }
        EXPECT_EQ(page.text, textOf(path)) << page.path;
    }
}

} // namespace
} // namespace generator_test
