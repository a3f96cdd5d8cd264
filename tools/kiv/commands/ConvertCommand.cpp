#include "frame/IObjectBase.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "text/Failure.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Documents.h"
#include "tools/kiv/convert/LongLists.h"

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
        m_options.declare(arguments);
        arguments.required("FILE", m_file, "The JSON file, or - for standard input");
        arguments.choice("--form", m_form, formNames(),
                         "full: with nested elements; shallow: nested elements as their uri; "
                         "reference: nothing but the uri");
        arguments.flag("--compact", m_compact, "Without blanks and line breaks");
    }

    /// A resource reads and writes an array of elements, each on its own, and anything but an array
    /// leaves it empty. So it is done here, for one element at a time: the result is that of the
    /// resource's `deserialize` and, for the full form, its `serialize`, and a file of any length
    /// needs no more memory than its largest entry, less its long lists.
    Exit run(Console& console) override
    {
        auto const writer = json::makeWriter(console.output, layout());
        bool const isList = m_options.isList();
        bool isWhole = true;
        LongLists lists(type(), layout(), m_options.listDepth());
        DocumentHandlers handlers;
        handlers.wantsPlaces = false;
        handlers.onPart = [&](DocumentPart const& given) { lists.read(given); };
        handlers.onEntry = [&](DocumentEntry const& given) {
            auto const element = lists.finish(given);
            if (isList) {
                write(element, [&](auto const&... what) { writer->entry(what...); });
            } else { // each of them is a document
                auto const line = json::makeWriter(console.output, layout());
                write(element, [&](auto const&... what) { line->document(what...); });
            }
        };
        handlers.onWrongForm = [&](WrongForm const& form) {
            isWhole = isList; // the library reads a list of none, but of an element nothing at all
            console.complain(Failure(json::placeText(form.file, form.position),
                                     form.stands + "; nothing is read of it" +
                                         (form.meant.empty() ? "" : "; " + form.meant)));
        };
        handlers.onBadLine = [&](Failure const& fault) {
            isWhole = false;
            console.complain(fault);
        };
        if (isList) {
            writer->startArray();
        }
        readDocuments(m_file, m_options, handlers);
        if (isList) {
            writer->endArray();
        }
        return isWhole ? Exit::Clean : Exit::Unable;
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

    /// A reference is no object, and has no lists.
    template <typename Write>
    static void write(LongLists::Element const& element, Write write)
    {
        if (element.lists.empty()) {
            write(element.value.get());
        } else {
            write(static_cast<data::Object const&>(*element.value), element.lists);
        }
    }

    [[nodiscard]] json::Layout layout() const
    {
        return m_compact || m_options.lines ? json::Layout::Compact : json::Layout::Indented;
    }

    [[nodiscard]] SerializationType type() const
    {
        auto const* const form = std::find_if(
            forms.begin(), forms.end(), [this](Form const& each) { return each.name == m_form; });
        return form->type;
    }

    DocumentOptions m_options;
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
