#include "tools/compat/Checkout.h"

#include "text/Failure.h"

#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace compat {
namespace {

namespace fs = std::filesystem;

/// Runs a program and waits for its end; what it complains of goes to standard error. Whether it
/// was content.
bool run(std::vector<std::string> words)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (int const error =
            posix_spawnp(&child, arguments.front(), nullptr, nullptr, arguments.data(), environ);
        error != 0) {
        throw kiv::Failure(words.front(),
                           "cannot be run: " + std::generic_category().message(error));
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return false;
        }
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

fs::path makePlace()
{
    auto pattern = (fs::temp_directory_path() / "kiv-compat-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw kiv::Failure(pattern, "cannot be made: " + std::generic_category().message(errno));
    }
    return pattern;
}

} // namespace

Checkout::Checkout(std::string const& folder, std::string const& revision) : m_place(makePlace())
{
    auto const archive = (m_place / "archive").string();
    std::error_code error;
    fs::create_directory(this->folder(), error);
    bool const isThere = !revision.starts_with('-') && // that would be an option
                         run({"git", "-C", folder, "archive", "--format=tar", "--output=" + archive,
                              revision, "--", "."}) &&
                         run({"tar", "-x", "-f", archive, "-C", this->folder().string()});
    if (!isThere) {
        fs::remove_all(m_place, error);
        throw kiv::Failure("git has no folder '" + folder + "' in the revision '" + revision +
                           "'; git log -- " + folder + " shows where it has");
    }
}

Checkout::~Checkout()
{
    std::error_code error; // what cannot be removed stays where such things are cleared away
    fs::remove_all(m_place, error);
}

fs::path Checkout::folder() const
{
    return m_place / "services";
}

} // namespace compat
