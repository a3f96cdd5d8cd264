#include "catalogue/Catalogue.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

/// Writes a source unit for each service, which hands the accessors of its classes over to the
/// tests, and one that calls them all:   accessor_pages FOLDER
namespace {

namespace catalogue = zel::kiv::catalogue;

using catalogue::Field;
using catalogue::Kind;
using catalogue::Resource;

std::string raised(std::string_view word)
{
    std::string result(word);
    if (result.front() >= 'a' && result.front() <= 'z') {
        result.front() = static_cast<char>(result.front() - 'a' + 'A');
    }
    return result;
}

std::string classOf(Resource const& resource)
{
    return "common::" + std::string(resource.elementClass);
}

/// The operation of `ElementFields` that takes the accessors of that kind, with their types.
std::string operationOf(Field const& field)
{
    switch (field.kind) {
    case Kind::String:
        return "plain<std::string const&, std::string const&>";
    case Kind::Int:
        return "plain<int, int>";
    case Kind::Double:
        return "plain<double, double>";
    case Kind::Bool:
        return "plain<bool, bool>";
    case Kind::StringList:
        return "plain<std::vector<std::string>, std::string const&>";
    case Kind::IntList:
        return "plain<std::vector<int>, int>";
    case Kind::Element:
    case Kind::External:
        return "element<" + classOf(*field.targets.front()) + ">";
    case Kind::ElementList:
    case Kind::ExternalList:
        return "elements<" + classOf(*field.targets.front()) + ">";
    case Kind::Polymorphic:
        return "polymorphic";
    }
    return "";
}

std::string polymorphicArguments(Field const& field)
{
    std::string const stem = raised(field.key);
    std::string targets;
    for (Resource const* const target : field.targets) {
        std::string const word = target->isExternal() ? "" : raised(target->service);
        targets += "target<" + classOf(*target) + ">(&E::set" + stem + ", &E::is" + word +
                   std::string(target->name) + std::string(target->element) + stem + "Set), ";
    }
    return "&E::get" + stem + ", {" + targets + "}";
}

std::string arguments(Field const& field)
{
    if (field.kind == Kind::Polymorphic) {
        return polymorphicArguments(field);
    }
    std::string const stem = raised(field.key);
    char const* const accept = catalogue::isList(field.kind) ? "add" : "set";
    return "&E::get" + stem + ", &E::" + accept + stem + ", &E::is" + stem + "Set";
}

std::string functionOf(Resource const& resource)
{
    std::string text = "{\n    using E = " + classOf(resource) + ";\n";
    text += "    ElementFields fields = fieldsOf<common::" + std::string(resource.resourceClass) +
            ", E>();\n";
    for (Field const& field : resource.fields) {
        text += "    fields." + operationOf(field) + "(\"" + std::string(field.key) + "\", " +
                arguments(field) + ");\n";
    }
    return text + "    all.push_back(std::move(fields));\n}\n";
}

/// Leaves the file alone if it says that already, so that nothing is compiled again.
void write(std::filesystem::path const& file, std::string const& text)
{
    std::ifstream old(file, std::ios::binary);
    std::string const before{std::istreambuf_iterator<char>(old), {}};
    if (before == text) {
        return;
    }
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream) {
        std::cerr << file.string() << ": cannot be written\n";
        std::exit(1);
    }
}

} // namespace

int main(int count, char** arguments)
{
    std::filesystem::path const folder = count > 1 ? arguments[1] : ".";
    std::filesystem::create_directories(folder);
    std::map<std::string, std::string> includes;
    std::map<std::string, std::string> bodies;
    for (Resource const& resource : catalogue::resources()) {
        std::string const service(resource.service);
        includes[service] += "#include \"" + std::string(resource.header) + "\"\n";
        bodies[service] += functionOf(resource);
    }
    std::string declarations;
    std::string calls;
    for (auto const& [service, body] : bodies) {
        std::string const head = "void " + service + "Fields(std::vector<ElementFields>& all)";
        declarations += head + ";\n";
        calls += "    " + service + "Fields(all);\n";
        write(folder / (service + ".cpp"),
              "#include \"tests/accessors/Fields.h\"\n\n" + includes[service] +
                  "\nnamespace accessors {\n\nnamespace common = zel::kiv::common;\n\n" + head +
                  ";\n" + head + "\n{\n" + body + "}\n\n} // namespace accessors\n");
    }
    write(folder / "all.cpp",
          "#include \"tests/accessors/Fields.h\"\n\nnamespace accessors {\n\n" + declarations +
              "\nstd::vector<ElementFields> allFields()\n{\n    std::vector<ElementFields> all;\n" +
              calls + "    return all;\n}\n\n} // namespace accessors\n");
    return 0;
}
