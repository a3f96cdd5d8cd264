#include "tools/kiv/OutputFile.h"

#include "text/Failure.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kiv {

namespace {

[[noreturn]] void fail(std::string const& path)
{
    throw Failure(path, std::string("cannot write: ") + std::strerror(errno));
}

/// What a new file may be used for.
mode_t newFileMode()
{
    mode_t const mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

} // namespace

OutputFile::OutputFile(std::string path) : m_path(std::move(path))
{
    std::error_code fault;
    auto const status = std::filesystem::status(m_path, fault);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        m_descriptor = open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
    } else {
        if (std::filesystem::exists(status)) { // a link stays one
            m_path = std::filesystem::canonical(m_path, fault).string();
        }
        m_draft = m_path + ".XXXXXX";
        m_descriptor = mkostemp(m_draft.data(), O_CLOEXEC);
    }
    if (m_descriptor < 0) {
        fail(m_path);
    }
}

OutputFile::~OutputFile()
{
    static_cast<void>(close(m_descriptor));
    if (!m_draft.empty()) {
        static_cast<void>(unlink(m_draft.c_str()));
    }
}

void OutputFile::keep()
{
    if (m_draft.empty()) {
        return;
    }
    struct stat old {};
    mode_t const mode = stat(m_path.c_str(), &old) == 0 ? old.st_mode & 07777U : newFileMode();
    if (fchmod(m_descriptor, mode) != 0 || fsync(m_descriptor) != 0 ||
        rename(m_draft.c_str(), m_path.c_str()) != 0) {
        fail(m_path);
    }
    m_draft.clear();
}

} // namespace kiv
