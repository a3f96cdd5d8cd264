#include "generator/model/Loader.h"

#include "generator/model/Collection.h"
#include "generator/model/TomlReader.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace kivgen {
namespace {

namespace fs = std::filesystem;

/// A file or folder with its name in messages.
struct Item {
    fs::path path;
    std::string name;  ///< `Presets.toml`
    std::string shown; ///< `services/radio/Presets.toml`
};

/// Collects definitions folder by folder.
class Loader {
public:
    Loaded load(fs::path const& folder, std::string const& shown);

private:
    std::vector<Item> itemsOf(Item const& folder);
    void loadService(Item const& folder);
    void loadServiceFile(std::string const& service, Item const& file);
    void loadDefinition(std::string const& service, Item const& file);
    void checkFilesOf(Item const& folder, std::vector<Item> const& items);
    void fail(Item const& item, std::string text);

    Collection m_collection;
};

bool isLeftover(std::string const& name)
{
    return name.starts_with('.') || name.ends_with('~') ||
           (name.starts_with('#') && name.ends_with('#'));
}

Item topItem(fs::path const& folder, std::string const& shown)
{
    std::error_code error;
    auto path = fs::absolute(folder, error).lexically_normal();
    if (!path.has_filename()) {
        path = path.parent_path(); // it ended in a slash
    }
    auto const name = path.filename().string();
    return {folder, name, printable(shown.empty() ? name : shown)};
}

void Loader::fail(Item const& item, std::string text)
{
    m_collection.faults().push_back({{item.shown}, std::move(text)});
}

std::vector<Item> Loader::itemsOf(Item const& folder)
{
    std::error_code error;
    std::vector<Item> items;
    fs::directory_iterator entry{folder.path, error};
    while (!error && entry != fs::directory_iterator{}) {
        auto const name = entry->path().filename().string();
        if (!isLeftover(name)) {
            items.push_back({entry->path(), name, folder.shown + "/" + printable(name)});
        }
        entry.increment(error);
    }
    if (error) {
        m_collection.faults().push_back(
            {{printable(folder.path.string())}, "this folder cannot be read: " + error.message()});
    }
    // The order of folders is that of the file system; the output must not depend on it.
    std::ranges::sort(items, {}, &Item::name);
    return items;
}

void Loader::loadDefinition(std::string const& service, Item const& file)
{
    auto const name = fs::path{file.name}.stem().string();
    auto const document = readToml(file.path, file.shown, m_collection.faults());
    m_collection.addDefinition(document, service, name, {file.shown});
}

void Loader::loadServiceFile(std::string const& service, Item const& file)
{
    auto const document = readToml(file.path, file.shown, m_collection.faults());
    m_collection.addService(document, service, {file.shown});
}

void Loader::checkFilesOf(Item const& folder, std::vector<Item> const& items)
{
    bool const hasOwn = std::ranges::find(items, serviceFileName, &Item::name) != items.end();
    if (!hasOwn && !items.empty()) {
        fail(folder,
             "has no service.toml; it says what the service is for: about = \"...\", and of "
             "which group it is: group = \"system\"");
    } else if (hasOwn && items.size() == 1) {
        fail(folder, "has no definition beside service.toml; a service has a resource or more");
    }
}

void Loader::loadService(Item const& folder)
{
    m_collection.checkServiceName(folder.name, {folder.shown});
    auto const items = itemsOf(folder);
    checkFilesOf(folder, items);
    for (Item const& item : items) {
        std::error_code error;
        auto const status = fs::status(item.path, error);
        if (fs::is_directory(status)) {
            fail(item, "a folder in the folder of a service; definitions lie beside each other");
        } else if (fs::path{item.name}.extension() != ".toml") {
            fail(item, "is no definition; their names end in .toml");
        } else if (!fs::is_regular_file(status)) {
            // A pipe or a device, which might never come to an end, or a link that leads nowhere.
            fail(item, "cannot be read: " + (error ? error.message() : "not a regular file"));
        } else if (item.name == serviceFileName) {
            loadServiceFile(folder.name, item);
        } else {
            loadDefinition(folder.name, item);
        }
    }
}

Loaded Loader::load(fs::path const& folder, std::string const& shown)
{
    auto const top = topItem(folder, shown);
    for (Item const& item : itemsOf(top)) {
        std::error_code error;
        if (fs::is_directory(item.path, error)) {
            loadService(item);
        } else {
            fail(item, "stands beside the services; a definition lies in the folder of its "
                       "service, " +
                           top.shown + "/<service>/<Resource>.toml");
        }
    }
    if (m_collection.isEmpty() && m_collection.faults().empty()) {
        fail(top,
             "there are no definitions; one lies in " + top.shown + "/<service>/<Resource>.toml");
    }
    return m_collection.finish();
}

} // namespace

Loaded load(fs::path const& servicesFolder, std::string const& shown)
{
    return Loader{}.load(servicesFolder, shown);
}

} // namespace kivgen
