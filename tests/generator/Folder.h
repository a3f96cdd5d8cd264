#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace generator_test {

namespace fs = std::filesystem;

inline std::string textOf(fs::path const& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

/// A test with a folder of its own.
class InFolder : public testing::Test {
protected:
    void SetUp() override
    {
        auto name = (fs::temp_directory_path() / "kivgen-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        m_folder = name;
    }

    void TearDown() override { fs::remove_all(m_folder); }

    [[nodiscard]] fs::path const& folder() const { return m_folder; }

private:
    fs::path m_folder;
};

} // namespace generator_test
