#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// Runs the real tool over the folders of `cases`. A case is a folder with a file `command`, shell
/// lines that call `kiv`, and what must come of them: `stdout` and `stderr`, nothing if the file is
/// not there, and `exit`, 0 if it is not there. Whatever else the commands read lies beside; what
/// they write goes into the folder `$KIV_TEMP`.
namespace {

namespace fs = std::filesystem;

std::string contentOf(fs::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::stringstream content;
    content << stream.rdbuf();
    return content.str();
}

std::vector<fs::path> allCases()
{
    std::vector<fs::path> cases;
    for (auto const& entry : fs::directory_iterator(KIV_CASES)) {
        cases.push_back(entry.path());
    }
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::string testName(testing::TestParamInfo<fs::path> const& info)
{
    std::string name = info.param.filename();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

class CaseTest : public testing::TestWithParam<fs::path> {
protected:
    void SetUp() override
    {
        m_folder = fs::path(testing::TempDir()) / ("kiv-case-" + std::to_string(getpid()));
        fs::create_directories(m_folder);
    }

    void TearDown() override { fs::remove_all(m_folder); }

    /// Runs the case's command and gives its exit code. The environment is fixed as far as the tool
    /// or the shell looks at it.
    int run()
    {
        std::ofstream(m_folder / "script")
            << "export LC_ALL=C TERM=xterm KIV='" KIV_COMMAND "'\n"
            << "unset NO_COLOR; KIV_TEMP='" << m_folder.string() << "'\n"
            << "kiv() { $KIV \"$@\"; }\n"
            << "cd '" << GetParam().string() << "' || exit 99\n"
            << contentOf(GetParam() / "command");
        std::string const at = m_folder.string();
        std::string const line =
            "sh '" + at + "/script' </dev/null >'" + at + "/stdout' 2>'" + at + "/stderr'";
        int const status = std::system(line.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    [[nodiscard]] std::string printed(char const* stream) const
    {
        return contentOf(m_folder / stream);
    }

private:
    fs::path m_folder;
};

TEST_P(CaseTest, printsAndExitsAsExpected)
{
    std::string const exit = contentOf(GetParam() / "exit");
    ASSERT_TRUE(fs::exists(GetParam() / "command"));

    EXPECT_EQ(run(), exit.empty() ? 0 : std::stoi(exit));
    EXPECT_EQ(printed("stdout"), contentOf(GetParam() / "stdout"));
    EXPECT_EQ(printed("stderr"), contentOf(GetParam() / "stderr"));
}

INSTANTIATE_TEST_SUITE_P(Kiv, CaseTest, testing::ValuesIn(allCases()), testName);

} // namespace
