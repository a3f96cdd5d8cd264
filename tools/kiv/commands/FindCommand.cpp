#include "json/JsonWriter.h"
#include "json/Make.h"
#include "text/Failure.h"
#include "text/Phrases.h"
#include "text/Printable.h"
#include "text/Suggestion.h"
#include "tools/kiv/Command.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace kiv {

namespace {

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](unsigned char character) {
        return static_cast<char>(std::tolower(character));
    });
    return result;
}

/// Something that can be found, and by what.
struct Candidate {
    std::string name;
    std::string what; ///< `service`, `resource`, or the kind of a field
    std::string about;
    std::string_view told;                ///< what is said of it
    std::vector<std::string_view> names;  ///< found by a part
    std::vector<std::string_view> wholes; ///< found in full only: every getter begins with `get`
};

Candidate candidateOf(catalogue::Resource const& resource, catalogue::Field const& field)
{
    Candidate candidate{nameOf(FieldOf{&resource, &field}),
                        std::string(wordOf(field.kind)),
                        listed(targetNames(field), "or"),
                        field.note,
                        {field.key},
                        {wordOf(field.kind)}};
    for (auto const& accessor : field.accessors) {
        candidate.wholes.push_back(accessor.name);
    }
    return candidate;
}

std::vector<Candidate> candidates()
{
    std::vector<Candidate> all;
    for (auto const& service : catalogue::services()) {
        all.push_back({std::string(service.name),
                       "service",
                       std::string(service.about),
                       service.about,
                       {service.name},
                       {}});
    }
    for (auto const& resource : catalogue::resources()) {
        all.push_back({nameOf(&resource),
                       "resource",
                       std::string(resource.about),
                       resource.about,
                       {resource.resourceKey, resource.name, resource.element},
                       {}});
    }
    for (auto const& resource : catalogue::resources()) {
        for (auto const& field : resource.fields) {
            all.push_back(candidateOf(resource, field));
        }
    }
    return all;
}

bool has(std::string_view text, std::string const& word)
{
    return lowered(text).find(word) != std::string::npos;
}

/// `radio` finds the service, and not each of its resources; `radio/` finds those.
bool isNamed(Candidate const& candidate, std::string const& word)
{
    return std::ranges::any_of(candidate.names,
                               [&](std::string_view name) { return has(name, word); }) ||
           (candidate.what == "resource" && word.find('/') != std::string::npos &&
            has(candidate.name, word)) ||
           std::ranges::any_of(candidate.wholes,
                               [&](std::string_view name) { return lowered(name) == word; });
}

/// How something was found, the surest first.
enum class Way { Name, Text, Near };
constexpr std::array<std::string_view, 3> wayWords{"name", "text", "near"};
using Found = std::array<std::vector<Candidate>, wayWords.size()>;

class FindCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "find"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Find services, resources and fields by a word";
    }
    [[nodiscard]] std::string_view example() const override { return "kiv find segment"; }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("WORD", m_word,
                           "A part of a service, resource, class or key, or of what is said of it, "
                           "in any case; an accessor, a header or a uri; or a kind of field in "
                           "full, such as polymorphic or 'element list'");
        arguments.flag("--json", m_json, "Print it as JSON");
    }

    Exit run(Console& console) override
    {
        Found const found = search();
        if (std::ranges::all_of(found, [](auto const& each) { return each.empty(); })) {
            throw Failure("nothing has " + inQuotes(m_word) +
                          " in its name or in its text, nor a name like it");
        }
        m_json ? writeJson(console, found) : print(console, found);
        return Exit::Clean;
    }

private:
    [[nodiscard]] Found search() const
    {
        Found found;
        std::string const word = lowered(m_word);
        auto const called = resourcesCalled(m_word);
        auto const isCalled = [&](Candidate const& candidate) {
            return std::ranges::any_of(
                called, [&](auto const* resource) { return nameOf(resource) == candidate.name; });
        };
        auto const add = [&](Way way, Candidate& candidate) {
            found.at(static_cast<std::size_t>(way)).push_back(std::move(candidate));
        };
        for (auto& candidate : candidates()) {
            if (isCalled(candidate) || isNamed(candidate, word)) {
                add(Way::Name, candidate);
            } else if (has(candidate.told, word)) {
                candidate.about = candidate.told;
                add(Way::Text, candidate);
            } else if (isNear(m_word, candidate.names.front())) {
                add(Way::Near, candidate);
            }
        }
        return found;
    }

    static void print(Console& console, Found const& found)
    {
        Table table;
        for (auto const& way : found) {
            for (auto const& each : way) {
                table.add({each.name, each.what, each.about});
            }
        }
        table.print(console);
    }

    static void writeJson(Console& console, Found const& found)
    {
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        writer->startArray();
        for (std::size_t way = 0; way < found.size(); ++way) {
            for (auto const& each : found.at(way)) {
                writer->entry(json::Members()
                                  .with("about", each.about)
                                  .with("by", wayWords.at(way))
                                  .with("name", each.name)
                                  .with("what", each.what)
                                  .take()
                                  .get());
            }
        }
        writer->endArray();
    }

    std::string m_word;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeFindCommand()
{
    return std::make_unique<FindCommand>();
}

} // namespace kiv
