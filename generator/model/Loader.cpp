#include "generator/model/Loader.h"

#include "generator/Naming.h"
#include "generator/model/Checks.h"
#include "generator/model/Definition.h"
#include "generator/model/Document.h"
#include "generator/model/Forms.h"
#include "generator/model/ProseNames.h"
#include "generator/model/ServiceFile.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <tuple>
#include <utility>

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
    Loaded load(fs::path const& folder);

private:
    std::vector<Item> itemsOf(Item const& folder);
    void loadService(Item const& folder);
    void loadServiceFile(std::string const& service, Item const& file);
    void loadDefinition(std::string const& service, Item const& file);
    void checkServiceName(Item const& folder);
    void checkResourceName(std::string const& name, Item const& file);
    void fail(Item const& item, std::string text);

    void checkWhole(Interface const& interface);
    void checkFilesOf(Item const& folder, std::vector<Item> const& items);

    std::vector<Definition> definitions_;
    std::vector<ServiceFile> services_;
    std::vector<std::string> names_; ///< of all definitions that have a file, also a faulty one
    Faults faults_;
};

bool isLeftover(std::string const& name)
{
    return name.starts_with('.') || name.ends_with('~') ||
           (name.starts_with('#') && name.ends_with('#'));
}

Item topItem(fs::path const& folder)
{
    std::error_code error;
    auto path = fs::absolute(folder, error).lexically_normal();
    if (!path.has_filename()) {
        path = path.parent_path(); // it ended in a slash
    }
    auto const name = path.filename().string();
    return {folder, name, printable(name)};
}

void Loader::fail(Item const& item, std::string text)
{
    faults_.push_back({{item.shown}, std::move(text)});
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
        fail(folder, "the folder " + inQuotes(folder.path.string()) +
                         " cannot be read: " + error.message());
    }
    // The order of folders is that of the file system; the output must not depend on it.
    std::ranges::sort(items, {}, &Item::name);
    return items;
}

void Loader::checkServiceName(Item const& folder)
{
    if (!hasServiceForm(folder.name)) {
        fail(folder, "the service name " + inQuotes(folder.name) +
                         " must be lower-case letters and digits, a letter first");
    } else if (isReservedService(folder.name)) {
        fail(folder, "the service name " + inQuotes(folder.name) +
                         " is a word that the generated code needs; take another");
    }
}

void Loader::checkResourceName(std::string const& name, Item const& file)
{
    if (!hasClassForm(name)) {
        auto const raised = stemOf(name);
        fail(file, "the resource class " + inQuotes(name) +
                       " must begin with a capital and go on with letters and digits" +
                       (hasClassForm(raised) ? "; did you mean " + inQuotes(raised) + "?" : ""));
    } else if (isReservedClass(name)) {
        fail(file, "the resource class " + inQuotes(name) +
                       " has a name that the generated code needs; take another");
    }
}

void Loader::loadDefinition(std::string const& service, Item const& file)
{
    auto const name = fs::path{file.name}.stem().string();
    checkResourceName(name, file);
    names_.push_back(service + "::" + name);
    if (auto const document = readDocument(file.path, file.shown, faults_)) {
        definitions_.push_back(readDefinition(*document, service, name, {file.shown}, faults_));
    }
}

void Loader::loadServiceFile(std::string const& service, Item const& file)
{
    if (auto const document = readDocument(file.path, file.shown, faults_)) {
        services_.push_back(readServiceFile(*document, service, {file.shown}, faults_));
    }
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
    checkServiceName(folder);
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

Loaded Loader::load(fs::path const& folder)
{
    auto const top = topItem(folder);
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
    if (names_.empty() && faults_.empty()) {
        fail(top,
             "there are no definitions; one lies in " + top.shown + "/<service>/<Resource>.toml");
    }
    Interface interface;
    for (Definition const& definition : definitions_) {
        interface.resources.push_back(definition.resource);
    }
    for (ServiceFile const& file : services_) {
        interface.services.push_back(file.service);
    }
    std::ranges::sort(interface.resources, {},
                      [](Resource const& one) { return std::tie(one.service, one.name); });
    std::ranges::sort(interface.services, {}, &Service::name);
    checkWhole(interface);
    return {std::move(interface), std::move(faults_)};
}

/// What can only be seen when all files are known.
void Loader::checkWhole(Interface const& interface)
{
    std::ranges::sort(names_);
    checkTargets(definitions_, names_, faults_);
    checkResourceKeys(definitions_, faults_);
    checkAccessors(interface, faults_);
    checkProseNames(definitions_, services_, names_, faults_);
    std::ranges::stable_sort(faults_, {}, [](Fault const& one) {
        return std::tie(one.place.file, one.place.line, one.place.column, one.text);
    });
}

} // namespace

Loaded load(fs::path const& servicesFolder)
{
    return Loader{}.load(servicesFolder);
}

} // namespace kivgen
