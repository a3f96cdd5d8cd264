#include "Command.h"
#include "Lookup.h"
#include "Printed.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include "frame/IResourceBase.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>

namespace kiv {
namespace {

using catalogue::Kind;

/// A value that the field takes, as JSON.
std::string sampleFor(catalogue::Field const& field)
{
    switch (field.kind) {
    case Kind::String:
        return R"("some text")";
    case Kind::Int:
        return "7";
    case Kind::Double:
        return "1.5";
    case Kind::Bool:
        return "true";
    case Kind::StringList:
        return R"(["a",null,"b"])";
    case Kind::IntList:
        return "[1,2]";
    case Kind::Element:
    case Kind::External:
        return R"({"id":"1","name":"n"})";
    case Kind::ElementList:
    case Kind::ExternalList:
        return R"([{"id":"1"},"/any/thing/2",null,3])";
    case Kind::Polymorphic:
        break;
    }
    bool const external = field.targets.back() == nullptr;
    return R"({"name":"n","uri":"/)" + (external ? "any/thing" : nameOf(field.targets.back())) +
           R"(/9"})";
}

/// An array with an element that has all fields, and all sorts of entries that are no objects.
std::string sampleFor(catalogue::Resource const& resource)
{
    std::string text;
    for (auto const& field : resource.fields) {
        text += ",\"" + std::string(field.key) + "\":" + sampleFor(field);
    }
    return "[{" + text.substr(1) + R"(},null,7,"/a/b/3",[],{"unknown":1},{}])";
}

std::string convertedByTool(catalogue::Resource const& resource, std::string const& json)
{
    auto const file = std::filesystem::path(testing::TempDir()) /
                      ("kiv-convert-" + std::to_string(getpid()) + ".json");
    std::ofstream(file) << json;
    std::string const name = nameOf(&resource);
    std::array const words{"convert", "--compact", name.c_str(), file.c_str()};
    commandline::CommandLine line("convert", "");
    auto const command = makeConvertCommand();
    command->declare(line.arguments());
    line.parse(static_cast<int>(words.size()), words.data());
    std::string text = printed([&](Output& output) {
        Console console{std::move(output), Style(STDOUT_FILENO)};
        command->run(console);
        output = std::move(console.output);
    });
    std::filesystem::remove(file);
    return text;
}

std::string convertedByResource(catalogue::Resource const& resource, std::string const& json)
{
    auto const document =
        json::readDocument("f", [json, given = false](std::span<char> buffer) mutable {
            std::size_t const count = given ? 0 : json.copy(buffer.data(), buffer.size());
            given = true;
            return count;
        });
    auto const object = resource.makeResource();
    object->deserialize(document.value.get());
    return printed([&](Output& output) {
        json::makeWriter(output, json::Layout::Compact)->document(object->serialize().get());
    });
}

TEST(Convert, oneByOneIsWhatTheResourceDoes)
{
    ASSERT_FALSE(catalogue::resources().empty());
    for (auto const& resource : catalogue::resources()) {
        std::string const json = sampleFor(resource);
        std::string const byTool = convertedByTool(resource, json);
        EXPECT_EQ(byTool, convertedByResource(resource, json)) << nameOf(&resource);
        EXPECT_EQ(byTool.find("unknown"), std::string::npos) << nameOf(&resource);
        for (auto const& field : resource.fields) {
            EXPECT_NE(byTool.find("\"" + std::string(field.key) + "\":"), std::string::npos)
                << nameOf(&resource) << " " << field.key;
        }
    }
}

} // namespace
} // namespace kiv
