#include "generator/model/Loader.h"
#include "Folder.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace generator_test {
namespace {

fs::path const dataFolder{KIVGEN_TEST_DATA};

std::string messagesOf(fs::path const& services)
{
    std::string messages;
    for (auto const& fault : kivgen::load(services).faults) {
        messages += toMessage(fault) + "\n";
    }
    return messages;
}

// Each folder of `faults` is a case: definitions, and the messages that they must give.

std::vector<std::string> casesOf(fs::path const& folder)
{
    std::vector<std::string> names;
    for (auto const& entry : fs::directory_iterator{folder}) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Faults : public testing::TestWithParam<std::string> {};

TEST_P(Faults, AreToldByTheirMessages)
{
    auto const folder = dataFolder / "faults" / GetParam();
    EXPECT_EQ(messagesOf(folder / "services"), textOf(folder / "expected.txt"));
}

INSTANTIATE_TEST_SUITE_P(Loader, Faults, testing::ValuesIn(casesOf(dataFolder / "faults")),
                         [](auto const& one) { return one.param; });

/// States of a file system that a repository cannot hold.
class LoaderOnDisk : public InFolder {
protected:
    void SetUp() override
    {
        InFolder::SetUp();
        fs::create_directories(services() / "radio");
    }

    [[nodiscard]] fs::path services() const { return folder() / "services"; }

    void write(std::string const& name, std::string const& text) const
    {
        fs::create_directories((services() / name).parent_path());
        std::ofstream{services() / name, std::ios::binary} << text;
    }

    void writeSound(std::string const& name) const
    {
        write(name, "element = \"SoundObject\"\nabout = \"Sound.\"\n[fields]\n");
        write(fs::path(name).parent_path() / "service.toml",
              "about = \"Sound.\"\ngroup = \"system\"\n");
    }

    [[nodiscard]] std::string messages() const { return messagesOf(services()); }
};

TEST_F(LoaderOnDisk, MissesDefinitions)
{
    EXPECT_EQ(messages(), "services: error: there are no definitions; one lies in "
                          "services/<service>/<Resource>.toml\n");
    auto const nowhere = services() / "nowhere";
    EXPECT_EQ(messagesOf(nowhere), "nowhere: error: the folder '" + nowhere.string() +
                                       "' cannot be read: No such file or directory\n");
}

TEST_F(LoaderOnDisk, RefusesNamesThatCodeCannotHave)
{
    for (auto const* const name :
         {"radio/presets", "radio/Two.Dots", "radio/PresetsDeserializer", "radio/IObjectBase",
          "radio/Element", "radio/EOF", "namespace/Presets", "std/Presets", "Radio/Presets",
          "1st/Presets"}) {
        writeSound(std::string(name) + ".toml");
    }
    EXPECT_EQ(messages(), textOf(dataFolder / "names.txt"));
}

TEST_F(LoaderOnDisk, PassesOverWhatToolsLeave)
{
    writeSound("radio/Sounds.toml");
    for (auto const* const name : {"radio/.Sounds.toml.swp", "radio/Sounds.toml~",
                                   "radio/#Sounds.toml#", ".directory", "radio~"}) {
        write(name, "rubbish");
    }
    fs::create_symlink("nowhere", services() / "radio" / ".#Sounds.toml");
    EXPECT_EQ(messages(), "");
    EXPECT_EQ(messagesOf(services() / ""), ""); // a slash at the end
}

TEST_F(LoaderOnDisk, ReadsOnlyFilesThatEnd)
{
    writeSound("radio/Sounds.toml");
    fs::create_symlink("Loop.toml", services() / "radio" / "Loop.toml");
    fs::create_symlink("nowhere", services() / "radio" / "Nowhere.toml");
    fs::create_symlink("/dev/zero", services() / "radio" / "Zero.toml");
    fs::create_directory_symlink("..", services() / "radio" / "above");
    ASSERT_EQ(mkfifo((services() / "radio" / "Pipe.toml").c_str(), 0600), 0);
    write("radio/Large.toml", std::string(5U << 20U, '\n'));
    EXPECT_EQ(
        messages(),
        "services/radio/Large.toml: error: is larger than 4 MiB; a definition takes a few lines\n"
        "services/radio/Loop.toml: error: cannot be read: Too many levels of symbolic links\n"
        "services/radio/Nowhere.toml: error: cannot be read: No such file or directory\n"
        "services/radio/Pipe.toml: error: cannot be read: not a regular file\n"
        "services/radio/Zero.toml: error: cannot be read: not a regular file\n"
        "services/radio/above: error: a folder in the folder of a service; definitions lie beside "
        "each other\n");
}

TEST_F(LoaderOnDisk, SaysWhatItMayNotRead)
{
    writeSound("radio/Sounds.toml");
    writeSound("radio/Secrets.toml");
    fs::create_directory(services() / "secret");
    fs::permissions(services().parent_path(), fs::perms::all);
    fs::permissions(services() / "radio" / "Secrets.toml", fs::perms::none);
    fs::permissions(services() / "secret", fs::perms::none);
    auto const user = geteuid();
    uid_t const nobody = 65534;
    // Nothing is forbidden to the root user, so it takes another one's place.
    ASSERT_EQ(user == 0 ? seteuid(nobody) : 0, 0);
    auto const told = messages();
    ASSERT_EQ(user == 0 ? seteuid(user) : 0, 0);
    EXPECT_EQ(told, "services/radio/Secrets.toml: error: cannot be read: Permission denied\n"
                    "services/secret: error: the folder '" +
                        (services() / "secret").string() + "' cannot be read: Permission denied\n");
    fs::permissions(services() / "secret", fs::perms::all);
}

TEST_F(LoaderOnDisk, TellsTextFromRubbish)
{
    using namespace std::string_literals;
    write("radio/Nul.toml", "\0\0\0"s);
    write("radio/Wide.toml", "\xFF\xFE"
                             "e\0l\0"s);
    write("radio/Word.toml", "element = \"WordObject\"\nabout = \"20 °C\"");
    fs::create_directory(services() / "\x1b[2J\xFF");
    writeSound("radio/Sounds.toml");
    std::string const advice = " is not plain ASCII; in 'about' another character is written as an "
                               "escape, such as \\u00b0\n";
    EXPECT_EQ(messages(),
              "services/\\x1b[2J\\xff: error: the service name '\\x1b[2J\\xff' must be lower-case "
              "letters and digits, a letter first\n"
              "services/radio/Nul.toml:1:1: error: the byte '\\x00'" +
                  advice + "services/radio/Wide.toml:1:1: error: the byte '\\xff'" + advice +
                  "services/radio/Word.toml:2:13: error: the byte '\\xc2'" + advice);
}

TEST_F(LoaderOnDisk, BearsSizeAndDepth)
{
    std::string const head = "element = \"SoundObject\"\nabout = \"Sound.\"\n[fields]\n";
    std::string good = head;
    std::string bad = head;
    for (int number = 10000; number < 20000; ++number) {
        auto const key = "key" + std::to_string(number);
        good += key + " = { element = \"radio::Sounds\" }\n";
        bad += key + " = \"imt\"\n";
    }
    writeSound("radio/Sounds.toml");
    write("radio/Sounds.toml", good);
    auto const loaded = kivgen::load(services());
    ASSERT_TRUE(loaded.faults.empty()) << toMessage(loaded.faults.front());
    EXPECT_EQ(loaded.interface.resources.at(0).fields.size(), 10003U);

    write("radio/Sounds.toml", bad);
    EXPECT_EQ(kivgen::load(services()).faults.size(), 10000U);

    // The deepest that the limits on lines and on nesting let through.
    std::string dots = "a";
    for (int depth = 0; depth < 490; ++depth) {
        dots += ".a";
    }
    write("radio/Sounds.toml", "[" + dots + "]\n" + dots + " = [\n{" + dots + " = [\n{" + dots +
                                   " = [\n{" + dots + " = 1}\n]}\n]}\n]\n");
    auto const faults = kivgen::load(services()).faults;
    ASSERT_EQ(faults.size(), 4U);
    EXPECT_EQ(faults.back().text.substr(0, 15), "unknown key 'a'");
}

} // namespace
} // namespace generator_test
