#include "frame/IObjectBase.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "text/Failure.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Progress.h"
#include "tools/kiv/check/Checker.h"
#include "tools/lookup/Lookup.h"

#include <array>

namespace kiv {

namespace {

using common::SerializationType;

struct Form {
    std::string_view name;
    SerializationType type;
};

constexpr std::array<Form, 3> forms{{
    {"full", SerializationType::Full},
    {"shallow", SerializationType::Shallow},
    {"reference", SerializationType::Reference},
}};

class ConvertCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "convert"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Read JSON as a resource, and write what the library made of it";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv convert radio/presets presets.json --form shallow";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("RESOURCE", m_resource, "The resource, as in uris");
        arguments.required("FILE", m_file, "The JSON file, or - for standard input");
        arguments.choice("--form", m_form, formNames(),
                         "full: with nested elements; shallow: nested elements as their uri; "
                         "reference: nothing but the uri");
        arguments.flag("--compact", m_compact, "Without blanks and line breaks");
    }

    /// A resource reads and writes an array of elements, each on its own, and anything but an array
    /// leaves it empty. So it is done here, for one element at a time: the result is that of the
    /// resource's `deserialize` and, for the full form, its `serialize`, and a file of any length
    /// needs no more memory than its largest entry.
    Exit run(Console& console) override
    {
        catalogue::Resource const& resource = resourceNamed(m_resource);
        InputFile input = openWithProgress(m_file);
        auto const writer = json::makeWriter(console.output, m_compact ? json::Layout::Compact
                                                                       : json::Layout::Indented);
        writer->startArray();
        json::readEntries(input.name, std::move(input.source),
                          [&](json::Entry const& entry, json::Places const& places) {
                              auto const element = readEntry(resource, entry, places, input.name);
                              writer->entry(element->serialize(type()).get());
                          });
        writer->endArray();
        return Exit::Clean;
    }

private:
    static std::vector<std::string> formNames()
    {
        std::vector<std::string> names;
        names.reserve(forms.size());
        for (auto const& form : forms) {
            names.emplace_back(form.name);
        }
        return names;
    }

    [[nodiscard]] SerializationType type() const
    {
        auto const* const form = std::find_if(
            forms.begin(), forms.end(), [this](Form const& each) { return each.name == m_form; });
        return form->type;
    }

    std::string m_resource;
    std::string m_file;
    std::string m_form = std::string(forms.front().name);
    bool m_compact = false;
};

} // namespace

std::unique_ptr<Command> makeConvertCommand()
{
    return std::make_unique<ConvertCommand>();
}

} // namespace kiv
