#include "tools/kiv/Documents.h"

#include "json/Maps.h"
#include "json/TypeNames.h"
#include "text/Path.h"
#include "tools/kiv/LentEntry.h"
#include "tools/kiv/LineReader.h"
#include "tools/kiv/Progress.h"
#include "tools/kiv/TextTroubles.h"
#include "tools/lookup/Lookup.h"

#include <utility>

namespace kiv {

namespace {

using data::ValueType;

constexpr std::string_view anyResource = "auto";
constexpr char const* recordedValue = "value";

bool isOf(ValueType::Code type, data::Value const* value)
{
    return value != nullptr && value->getType() == type;
}

data::Value const* valueAt(data::Value const* value, std::string const& key)
{
    return isOf(ValueType::Object, value)
               ? kiv::valueAt(static_cast<data::Object const&>(*value), key)
               : nullptr;
}

/// The text below a key, or nothing.
std::string_view textAt(data::Value const* value, std::string const& key)
{
    auto const* const found = valueAt(value, key);
    return isOf(ValueType::String, found)
               ? std::string_view(static_cast<data::String const*>(found)->get())
               : std::string_view();
}

/// Reads one file.
class DocumentReader {
public:
    DocumentReader(InputFile input, DocumentOptions const& options,
                   DocumentHandlers const& handlers)
        : m_input(std::move(input)), m_options(options),
          m_handlers(handlers), m_listeners{handlers.onMisfit, handlers.onRepeatedKey, nullptr,
                                            nullptr},
          m_resource(options.resource == anyResource ? nullptr : &resourceNamed(options.resource))
    {
        if (!m_options.isList()) {
            m_troubles.keep(m_listeners, m_handlers);
        }
        if (m_handlers.onPart && m_resource != nullptr) {
            m_listeners.onPart = [this](json::Part& part) { return takePart(part); };
        }
        if (!m_handlers.wantsPlaces) {
            // On a line, elements may lie in two levels of what is around them.
            m_listeners.wantsPlace = [around = m_options.lines ? 2U : 0U](auto depth, auto key,
                                                                          auto const* value) {
                return depth <= around || (key == "uri" && !isOf(ValueType::String, value));
            };
        }
    }
    DocumentReader(DocumentReader const&) = delete;
    DocumentReader& operator=(DocumentReader const&) = delete;
    ~DocumentReader() = default;

    void read()
    {
        if (m_options.lines) {
            readLines();
        } else if (m_options.element) {
            auto document = readWhole(std::move(m_input.source), {});
            m_troubles.tell("", elementPath(document));
            readElement(document);
        } else {
            readArray();
        }
    }

private:
    json::Document readWhole(json::ByteSource source, json::Position start)
    {
        try {
            return json::readDocument(m_input.name, std::move(source), start, m_listeners);
        } catch (...) {
            m_troubles.tell("", "");
            throw;
        }
    }

    /// Where among the elements the document stands, if it is one.
    [[nodiscard]] std::string elementPath(json::Document const& document) const
    {
        return isOf(ValueType::Object, document.value.get()) ? pathOf(m_elements) : "";
    }

    static std::string pathOf(std::size_t index)
    {
        Path path;
        path.enter(index);
        return path.text();
    }

    void readArray()
    {
        json::Document const rest = json::readEntries(
            m_input.name, std::move(m_input.source),
            [this](json::Entry entry, json::Places& places) {
                give(entry, places, m_resource, &entry.value);
            },
            m_listeners);
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
                auto document = readWhole(lines.source(), {lines.number(), 1});
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
            m_troubles.tell("", elementPath(document));
            isOf(ValueType::Array, value) ? readEntries(*value, document, m_resource)
                                          : readElement(document);
            return;
        }
        m_troubles.tell(recordedValue, of == "element" ? pathOf(m_elements) : "");
        auto const* const recorded = &recordedResource(name, position);
        if (m_resource != nullptr && m_resource != recorded) {
            return; // the line is of another resource than the one that was asked for
        }
        auto* const inner = const_cast<data::Value*>(valueAt(value, recordedValue));
        auto const* const place =
            document.places.find(static_cast<data::Object const&>(*value), recordedValue);
        position = place == nullptr ? position : place->position;
        if (of == "element") {
            if (isElement(inner, position)) {
                LentEntry entry(inner, position, m_elements++);
                give(entry.get(), document.places, recorded, &document.value);
            }
        } else if (isOf(ValueType::Array, inner)) {
            readEntries(*inner, document, recorded);
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

    void readEntries(data::Value& array, json::Document& document,
                     catalogue::Resource const* resource)
    {
        auto& entries = static_cast<data::Array&>(array).get();
        std::size_t const count = entries.size(); // the document goes with its last entry
        for (std::size_t i = 0; i < count; ++i) {
            LentEntry entry(entries[i], document.places.entry(array, i), i);
            give(entry.get(), document.places, resource,
                 i + 1 == count ? &document.value : nullptr);
        }
    }

    /// Reads one that is the whole document.
    void readElement(json::Document& document)
    {
        if (isElement(document.value.get(), document.position)) {
            json::Entry entry{std::move(document.value), document.position, m_elements++,
                              std::move(document.given)};
            give(entry, document.places, m_resource, &entry.value);
        }
    }

    bool isElement(data::Value const* value, json::Position position)
    {
        bool const isObject = isOf(ValueType::Object, value);
        if (!isObject) {
            refuse(position, value, "an element",
                   isOf(ValueType::Array, value) ? "leave --element out" : "");
        }
        return isObject;
    }

    /// The entries of lists are read in parts; those of what the resource does not have are not
    /// looked at, unless the document may be a record.
    bool takePart(json::Part& part)
    {
        auto const* const field = m_resource->find(part.key);
        if (field == nullptr || (m_options.lines && part.key == recordedValue)) {
            return !m_options.lines;
        }
        if (!catalogue::isList(field->kind)) {
            return false;
        }
        m_handlers.onPart({m_input.name, *m_resource, m_elements + part.index, part});
        return true;
    }

    /// Hands an element over, to the resource that its own uri names if none is known.
    void give(json::Entry& entry, json::Places& places, catalogue::Resource const* resource,
              std::unique_ptr<data::Value>* owner)
    {
        std::string_view const uri = textAt(entry.value.get(), "uri");
        if (resource == nullptr && uri.starts_with('/')) {
            auto const named = resourcesCalled(uri);
            resource = named.empty() ? nullptr : named.front();
        }
        if (resource == nullptr) {
            tell({m_input.name, entry.position, pathOf(entry.index),
                  "an element that does not say of which resource it is",
                  "give it a uri, or name the resource in the place of auto"});
            return;
        }
        m_handlers.onEntry({m_input.name, *resource, entry, places, owner});
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
    json::Listeners m_listeners;
    TextTroubles m_troubles; ///< where the path of an element is not known as it is read
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
