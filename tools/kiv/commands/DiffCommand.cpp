#include "frame/IObjectBase.h"
#include "json/JsonWriter.h"
#include "json/TypeNames.h"
#include "testing/difference.h"
#include "text/Failure.h"
#include "text/Path.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Progress.h"
#include "tools/kiv/check/Checker.h"
#include "tools/lookup/Lookup.h"

namespace kiv {

namespace {

class DiffCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "diff"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Compare two documents as the library reads them";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv diff radio/presets before.json after.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("RESOURCE", m_resource, "The resource, as in uris");
        arguments.required("A", m_left, "A JSON file, or - for standard input");
        arguments.required("B", m_right, "Another one");
    }

    Exit run(Console& console) override
    {
        catalogue::Resource const& resource = resourceNamed(m_resource);
        auto const left = readInFull(resource, m_left);
        auto const right = readInFull(resource, m_right);
        bool same = true;
        Path path;
        zel::kiv::testing::compare(
            path, left.get(), right.get(),
            [&](Path const& place, data::Value const* a, data::Value const* b) {
                same = false;
                print(console, place, a, b);
            });
        return same ? Exit::Clean : Exit::Findings;
    }

private:
    static std::unique_ptr<data::Array> readInFull(catalogue::Resource const& resource,
                                                   std::string const& path)
    {
        auto entries = std::make_unique<data::Array>();
        InputFile input = openWithProgress(path);
        json::Document const rest = json::readEntries(
            input.name, std::move(input.source),
            [&](json::Entry const& entry, json::Places const& places) {
                auto const element = readEntry(resource, entry, places, input.name);
                entries->pushNew(element->serialize(common::SerializationType::Full).release());
            });
        refuseAllButArray(input.name, rest);
        return entries;
    }

    /// The library would read anything else as no elements, and two such documents as the same.
    static void refuseAllButArray(std::string const& file, json::Document const& document)
    {
        data::Value const* const top = document.value.get();
        if (top == nullptr || top->getType() != data::ValueType::Array) {
            throw Failure(json::placeText(file, document.position),
                          std::string(typeName(top)) +
                              " where an array is wanted; put the elements in brackets");
        }
    }

    static void print(Console& console, Path const& path, data::Value const* a,
                      data::Value const* b)
    {
        console.output.write(console.style.strong(path.text() + ":") + " ");
        if (a == nullptr || b == nullptr) {
            console.output.write(a == nullptr ? "only in B: " : "only in A: ");
            write(console, a == nullptr ? b : a);
        } else {
            write(console, a);
            console.output.write(" -> ");
            write(console, b);
        }
        console.output.put('\n');
    }

    static void write(Console& console, data::Value const* value)
    {
        json::makeWriter(console.output, json::Layout::Compact)->entry(value);
    }

    std::string m_resource;
    std::string m_left;
    std::string m_right;
};

} // namespace

std::unique_ptr<Command> makeDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace kiv
