#include "frame/ElementStatus.h"
#include "text/Phrases.h"
#include "tools/lookup/Lookup.h"
#include "tools/reference/Address.h"
#include "tools/reference/FieldTable.h"
#include "tools/reference/Html.h"
#include "tools/reference/KindTexts.h"
#include "tools/reference/Pages.h"

#include <array>
#include <regex>
#include <stdexcept>

namespace reference {

namespace {

using kiv::catalogue::Field;
using kiv::catalogue::Kind;
using kiv::catalogue::Resource;

/// Kinds of more fields than that have too many to list.
constexpr std::size_t mostListed = 60;

Data kindData(Kind kind)
{
    List fields;
    std::size_t count = 0;
    for (Resource const& resource : kiv::catalogue::resources()) {
        for (Field const& field : resource.fields) {
            if (field.kind == kind) {
                Data data;
                data.set("address", addressOf(resource, field));
                data.set("name", breakable(kiv::nameOf({&resource, &field})));
                fields.push_back(std::move(data));
                ++count;
            }
        }
    }
    auto const texts = textsOf(kind);
    bool const isPolymorphic = kind == Kind::Polymorphic;
    Data data;
    data.set("kind", std::string(wordOf(kind)));
    data.set("place", placeOf(kind));
    data.set("stored", breakable(traitsOf(kind).stored));
    data.set("flags", isPolymorphic ? ", and a flag for each target" : "");
    data.set("ownership", std::string(texts.ownership));
    data.set("written", std::string(texts.written));
    data.set("count", kiv::counted(count, "field"));
    data.set("isListed", count <= mostListed);
    data.set("fields", fields);
    return data;
}

/// A document of the project as the reference shows it. Of documents that are no pages it gives the
/// name, since the reference also stands alone.
std::string documentOf(fs::path const& file, Prose const& prose)
{
    static std::array<std::pair<std::regex, char const*>, 5> const changes{{
        {std::regex(R"(<a href="silence\.md">)"), R"(<a href="silence.html">)"},
        {std::regex(R"re(<a href="[^"]*\.md">(.*?)</a>)re"), "<code>docs/$1</code>"},
        {std::regex("<pre>"), R"(<pre tabindex="0">)"},
        {std::regex("<table>"), R"(<div class="wide" tabindex="0"><table>)"},
        {std::regex("</table>"), "</table></div>"},
    }};
    std::string html = contentOf(file);
    for (auto const& [from, to] : changes) {
        html = std::regex_replace(html, from, to);
    }
    return prose.linked(html);
}

/// What stands below that heading of a document.
std::string sectionOf(std::string const& html, std::string const& heading)
{
    std::string const start = "<h2>" + heading + "</h2>";
    auto const place = html.find(start);
    if (place == std::string::npos) {
        throw std::runtime_error("docs/using.md has no section '" + heading + "'");
    }
    auto const from = place + start.size();
    return html.substr(from, html.find("<h2>", from) - from);
}

Data operationData(Type const& type, Operation const& operation, Prose const& prose)
{
    Data data;
    data.set("place", type.name + '.' + operation.name);
    data.set("before", breakable(operation.before));
    data.set("name", breakable(operation.name));
    data.set("after", breakable(operation.after));
    data.set("text", prose.linked(operation.about));
    return data;
}

/// The text of a status is a fact of the library, so the library is asked.
std::string meaningOf(Type const& type, Value const& value)
{
    if (type.name != "ElementStatus") {
        return value.about;
    }
    auto const status = static_cast<kiv::common::ElementStatus>(std::stoi(value.number));
    return "<code>" + escaped(kiv::common::ELEMENTSTATUSANDSTRINGMAP.at(status)) + "</code>";
}

Data typeData(Type const& type, Prose const& prose)
{
    List values;
    for (Value const& value : type.values) {
        Data data;
        data.set("place", type.name + '.' + value.name);
        data.set("number", value.number);
        data.set("name", breakable(value.name));
        data.set("meaning", meaningOf(type, value));
        values.push_back(std::move(data));
    }
    List operations;
    for (Operation const& operation : type.operations) {
        operations.push_back(operationData(type, operation, prose));
    }
    Data data;
    data.set("name", type.name);
    data.set("shownName", breakable(type.name));
    data.set("header", type.header);
    data.set("isExample", type.name.find("::") != std::string::npos);
    data.set("text", prose.linked(type.about));
    data.set("hasTexts", type.name == "ElementStatus");
    data.set("hasValues", !values.empty());
    data.set("values", values);
    data.set("members", operations);
    return data;
}

} // namespace

Page framePage(Sources const& sources)
{
    List types;
    for (Type const& type : sources.frame) {
        types.push_back(typeData(type, sources.prose));
    }
    auto const& external = kiv::catalogue::external();
    std::string const guide = documentOf(sources.texts / "using.html", sources.prose);
    Data data;
    data.set("version", sources.version);
    data.set("example", breakable(kiv::resourceNamed("radio/presets").elementClass));
    data.set("link", sectionOf(guide, "Link"));
    data.set("ownership", sectionOf(guide, "Who owns what"));
    data.set("commonFields", fieldTable(external, true, sources.templates, sources.prose));
    data.set("classes", types);
    return {.sort = "guide",
            .address = "frame.html",
            .title = "The frame",
            .summary = "What all classes share, how to link, and who owns what",
            .content = sources.templates.fill("frame", data)};
}

Page kindsPage(Sources const& sources)
{
    List kinds;
    for (Kind const kind : kiv::catalogue::kinds) {
        kinds.push_back(kindData(kind));
    }
    Data data;
    data.set("kinds", kinds);
    return {.sort = "guide",
            .address = "kinds.html",
            .title = "Kinds of field",
            .summary = "How each kind of field is stored, read and written",
            .content = sources.templates.fill("kinds", data)};
}

Page silencePage(Sources const& sources)
{
    Data data;
    data.set("text", documentOf(sources.texts / "silence.html", sources.prose));
    return {.sort = "guide",
            .address = "silence.html",
            .title = "What goes in wrong",
            .summary = "What becomes of values that do not fit",
            .content = sources.templates.fill("silence", data)};
}

} // namespace reference
