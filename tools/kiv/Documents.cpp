#include "tools/kiv/Documents.h"

#include "json/TypeNames.h"
#include "text/Path.h"
#include "tools/kiv/LineReader.h"
#include "tools/kiv/Progress.h"
#include "tools/lookup/Lookup.h"

#include <utility>

namespace kiv {

namespace {

using data::ValueType;

constexpr std::string_view anyResource = "auto";

bool isOf(ValueType::Code type, data::Value const* value)
{
    return value != nullptr && value->getType() == type;
}

data::Value const* valueAt(data::Value const* value, std::string const& key)
{
    if (!isOf(ValueType::Object, value)) {
        return nullptr;
    }
    auto const& map = static_cast<data::Object const&>(*value).get();
    auto const found = map.find(key);
    return found == map.end() ? nullptr : static_cast<data::Value const*>(found->second);
}

/// The text below a key, or nothing.
std::string_view textAt(data::Value const* value, std::string const& key)
{
    auto const* const found = valueAt(value, key);
    return isOf(ValueType::String, found)
               ? std::string_view(static_cast<data::String const*>(found)->get())
               : std::string_view();
}

/// An entry whose value belongs to what it stands in.
class LentEntry {
public:
    LentEntry(data::Value* value, json::Position position, std::size_t index)
        : m_entry{std::unique_ptr<data::Value>(value), position, index}
    {
    }
    LentEntry(LentEntry const&) = delete;
    LentEntry& operator=(LentEntry const&) = delete;
    ~LentEntry() { static_cast<void>(m_entry.value.release()); }

    json::Entry& get() { return m_entry; }

private:
    json::Entry m_entry;
};

/// Reads one file.
class DocumentReader {
public:
    DocumentReader(InputFile input, DocumentOptions const& options,
                   DocumentHandlers const& handlers)
        : m_input(std::move(input)), m_options(options), m_handlers(handlers),
          m_resource(options.resource == anyResource ? nullptr : &resourceNamed(options.resource))
    {
    }

    void read()
    {
        if (m_options.lines) {
            readLines();
        } else if (m_options.element) {
            auto document = json::readDocument(m_input.name, std::move(m_input.source), {},
                                               m_handlers.onMisfit, m_handlers.onRepeatedKey);
            readElement(document.value.get(), document.position, document.places, m_resource);
        } else {
            readArray();
        }
    }

private:
    void readArray()
    {
        json::Document const rest = json::readEntries(
            m_input.name, std::move(m_input.source),
            [this](json::Entry entry, json::Places& places) {
                give(entry, places, m_resource, true);
            },
            m_handlers.onMisfit, m_handlers.onRepeatedKey);
        if (!isOf(ValueType::Array, rest.value.get())) {
            bool const isObject = isOf(ValueType::Object, rest.value.get());
            refuse(rest.position, rest.value.get(), "an array",
                   isObject ? "put the elements in brackets, or say --element"
                            : "put the elements in brackets");
        }
    }

    void readLines()
    {
        LineReader lines(std::move(m_input.source));
        while (lines.next()) {
            try {
                auto document =
                    json::readDocument(m_input.name, lines.source(), {lines.number(), 1},
                                       m_handlers.onMisfit, m_handlers.onRepeatedKey);
                readLine(document);
            } catch (Failure const& fault) {
                if (!m_handlers.onBadLine) {
                    throw;
                }
                m_handlers.onBadLine(fault);
            }
        }
    }

    void readLine(json::Document& document)
    {
        data::Value* value = document.value.get();
        json::Position position = document.position;
        std::string_view const name = textAt(value, "resource");
        std::string_view const of = textAt(value, "of");
        if (name.empty() || (of != "resource" && of != "element")) {
            isOf(ValueType::Array, value)
                ? readEntries(*value, document.places, m_resource)
                : readElement(value, position, document.places, m_resource);
            return;
        }
        auto const* const recorded = &recordedResource(name, position);
        if (m_resource != nullptr && m_resource != recorded) {
            return; // the line is of another resource than the one that was asked for
        }
        auto* const inner = const_cast<data::Value*>(valueAt(value, "value"));
        auto const* const place =
            document.places.find(static_cast<data::Object const&>(*value), "value");
        position = place == nullptr ? position : place->position;
        if (of == "element") {
            readElement(inner, position, document.places, recorded);
        } else if (isOf(ValueType::Array, inner)) {
            readEntries(*inner, document.places, recorded);
        } else {
            refuse(position, inner, "an array", "a resource is read from an array alone");
        }
    }

    [[nodiscard]] catalogue::Resource const& recordedResource(std::string_view name,
                                                              json::Position position) const
    {
        try {
            return resourceNamed(name);
        } catch (Failure const& fault) {
            throw Failure(json::placeText(m_input.name, position), fault.what());
        }
    }

    void readEntries(data::Value& array, json::Places& places, catalogue::Resource const* resource)
    {
        auto& entries = static_cast<data::Array&>(array).get();
        for (std::size_t i = 0; i < entries.size(); ++i) {
            LentEntry entry(entries[i], places.entry(array, i), i);
            give(entry.get(), places, resource, false);
        }
    }

    void readElement(data::Value* value, json::Position position, json::Places& places,
                     catalogue::Resource const* resource)
    {
        if (!isOf(ValueType::Object, value)) {
            refuse(position, value, "an element",
                   isOf(ValueType::Array, value) ? "leave --element out" : "");
            return;
        }
        LentEntry entry(value, position, m_elements++);
        give(entry.get(), places, resource, false);
    }

    /// Hands an element over, to the resource that its own uri names if none is known.
    void give(json::Entry& entry, json::Places& places, catalogue::Resource const* resource,
              bool isAlone)
    {
        std::string_view const uri = textAt(entry.value.get(), "uri");
        if (resource == nullptr && uri.starts_with('/')) {
            auto const named = resourcesCalled(uri);
            resource = named.empty() ? nullptr : named.front();
        }
        if (resource == nullptr) {
            Path path;
            path.enter(entry.index);
            tell({m_input.name, entry.position, path.text(),
                  "an element that does not say of which resource it is",
                  "give it a uri, or name the resource in the place of auto"});
            return;
        }
        m_handlers.onEntry({m_input.name, *resource, entry, places, isAlone});
    }

    void refuse(json::Position position, data::Value const* value, std::string const& wanted,
                std::string meant)
    {
        tell({m_input.name, position, Path().text(),
              std::string(typeName(value)) + " where " + wanted + " is wanted", std::move(meant)});
    }

    void tell(WrongForm const& form)
    {
        if (!m_handlers.onWrongForm) {
            throw Failure(json::placeText(form.file, form.position),
                          form.stands + (form.meant.empty() ? "" : "; " + form.meant));
        }
        m_handlers.onWrongForm(form);
    }

    InputFile m_input;
    DocumentOptions const& m_options;
    DocumentHandlers const& m_handlers;
    catalogue::Resource const* m_resource; ///< null: each element says of which it is
    std::size_t m_elements = 0;            ///< that stood alone
};

} // namespace

void DocumentOptions::declare(commandline::Arguments& arguments)
{
    arguments.required("RESOURCE", resource,
                       "The resource, as in uris; auto: each element's uri, or its record, says");
    arguments.flag("--lines", lines,
                   "A value on each line: an array, an element, or a record of one");
    arguments.flag("--element", element, "The file holds one element, without an array");
}

void readDocuments(std::string const& path, DocumentOptions const& options,
                   DocumentHandlers const& handlers)
{
    DocumentReader(openWithProgress(path), options, handlers).read();
}

} // namespace kiv
