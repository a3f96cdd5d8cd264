#include "tools/compat/Side.h"

#include "generator/model/Loader.h"
#include "generator/model/Snapshot.h"
#include "text/Phrases.h"
#include "tools/compat/Checkout.h"

#include <filesystem>
#include <utility>

namespace compat {
namespace {

void refuse(kivgen::Faults& faults)
{
    if (!faults.empty()) {
        throw Faulty(std::move(faults));
    }
}

Side readFolder(std::filesystem::path const& folder, std::string const& shown)
{
    auto loaded = kivgen::load(folder, shown);
    refuse(loaded.faults);
    return {std::move(loaded.interface), std::nullopt};
}

/// Without the slashes that a shell completes folders with.
std::string shownAs(std::string const& path)
{
    auto const last = path.find_last_not_of('/');
    return last == std::string::npos ? path : path.substr(0, last + 1);
}

} // namespace

Faulty::Faulty(kivgen::Faults faults)
    : kiv::Failure(kiv::counted(faults.size(), "fault") + " in the definitions, nothing compared"),
      m_faults(std::move(faults))
{
}

Side readSide(std::string const& path)
{
    if (std::filesystem::is_directory(path)) {
        return readFolder(path, shownAs(path));
    }
    auto snapshot = kivgen::loadSnapshot(path);
    refuse(snapshot.loaded.faults);
    return {std::move(snapshot.loaded.interface), versionOf(snapshot.release)};
}

Side readRevision(std::string const& folder, std::string const& revision)
{
    Checkout const checkout(folder, revision);
    return readFolder(checkout.folder(), revision + ":" + shownAs(folder));
}

} // namespace compat
