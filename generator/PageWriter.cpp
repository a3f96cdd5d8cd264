#include "generator/PageWriter.h"

#include "generator/pages/Pages.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace kivgen {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(fs::path const& path, std::string const& what)
{
    throw std::runtime_error(path.string() + ": error: " + what);
}

void makeFolder(fs::path const& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        fail(folder, "cannot make this folder: " + error.message());
    }
}

/// Keeps a second run waiting until this one is done with the folder; otherwise each would take the
/// other's drafts for leftovers. The system releases the lock of a run that dies.
class FolderLock {
public:
    explicit FolderLock(fs::path const& folder)
        : m_descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        // Where a file system has no locks, two runs at once remain the user's own affair.
        while (m_descriptor >= 0 && flock(m_descriptor, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    FolderLock(FolderLock const&) = delete;
    FolderLock& operator=(FolderLock const&) = delete;
    ~FolderLock()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }

private:
    int m_descriptor;
};

bool holds(fs::path const& path, std::string const& text)
{
    std::error_code error;
    if (fs::file_size(path, error) != text.size() || error) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return file.good() && content.str() == text;
}

/// Writes beside the file and moves over it, so that whoever interrupts finds the old file or the
/// new one, never a half.
void replace(fs::path const& path, std::string const& text)
{
    makeFolder(path.parent_path());
    std::error_code error;
    fs::path const draft = path.string() + ".part";
    std::ofstream file(draft, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
        fs::remove(draft, error);
        fail(path, "cannot write this file; is the folder writable, and is there space left?");
    }
    fs::rename(draft, path, error);
    if (error) {
        std::error_code ignored;
        fs::remove(draft, ignored);
        fail(path, "cannot replace this file: " + error.message());
    }
}

bool isGenerated(fs::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string line;
    return std::getline(file, line) && line.starts_with(generatedMark);
}

std::size_t removeStale(fs::path const& folder, std::set<fs::path> const& current)
{
    std::vector<fs::path> stale;
    for (auto const& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && !current.contains(entry.path()) &&
            isGenerated(entry.path())) {
            stale.push_back(entry.path());
        }
    }
    for (fs::path const& path : stale) {
        fs::remove(path);
    }
    return stale.size();
}

} // namespace

Written write(std::vector<Page> const& pages, fs::path const& folder)
{
    makeFolder(folder);
    FolderLock const lock(folder);
    Written result;
    std::set<fs::path> current;
    for (Page const& page : pages) {
        fs::path const path = folder / page.path;
        current.insert(path);
        if (!holds(path, page.text)) {
            replace(path, page.text);
            ++result.changed;
        }
    }
    result.removed = removeStale(folder, current);
    return result;
}

} // namespace kivgen
