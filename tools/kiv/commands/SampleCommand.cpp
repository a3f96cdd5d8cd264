#include "json/JsonWriter.h"
#include "tools/kiv/Command.h"
#include "tools/lookup/Lookup.h"
#include "tools/sample/Sample.h"

namespace kiv {

namespace {

/// Each level multiplies the size: radio/stations has 28 kB at depth 1 and 1.9 MB at depth 3.
constexpr int deepest = 3;

class SampleCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "sample"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Write an element with every field set, ready to edit";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv sample radio/presets --depth 0 > presets.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("RESOURCE", m_resource, "The resource, as in uris");
        arguments.number("--depth", m_depth, 0, deepest,
                         "How many levels of nested elements are written out; below them are uris");
    }

    Exit run(Console& console) override
    {
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        writer->startArray();
        writer->entry(zel::kiv::sample::sampleOf(resourceNamed(m_resource), m_depth).get());
        writer->endArray();
        return Exit::Clean;
    }

private:
    std::string m_resource;
    int m_depth = 1;
};

} // namespace

std::unique_ptr<Command> makeSampleCommand()
{
    return std::make_unique<SampleCommand>();
}

} // namespace kiv
