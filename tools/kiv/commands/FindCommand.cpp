#include "text/Failure.h"
#include "text/Phrases.h"
#include "text/Suggestion.h"
#include "tools/kiv/Command.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
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
                           "in any case; or a kind of field in full, such as polymorphic or "
                           "'element list'");
    }

    Exit run(Console& console) override
    {
        m_lowered = lowered(m_word);
        Table table;
        addServices(table);
        addResources(table);
        addFields(table);
        addTexts(table);
        if (table.empty()) {
            throw Failure("nothing has '" + m_word + "' in its name or in its text" +
                          didYouMean(m_word, allKeys()));
        }
        table.print(console);
        return Exit::Clean;
    }

private:
    void addServices(Table& table) const
    {
        for (auto const& service : catalogue::services()) {
            if (matches(service.name)) {
                table.add({std::string(service.name), "service", std::string(service.about)});
            }
        }
    }

    void addResources(Table& table) const
    {
        for (auto const& resource : catalogue::resources()) {
            if (isNamed(resource)) {
                table.add({nameOf(&resource), "resource", std::string(resource.about)});
            }
        }
    }

    void addFields(Table& table) const
    {
        for (auto const& resource : catalogue::resources()) {
            for (auto const& field : resource.fields) {
                if (isNamed(field)) {
                    table.add({nameOf(FieldOf{&resource, &field}), std::string(wordOf(field.kind)),
                               listed(targetNames(field), "or")});
                }
            }
        }
    }

    /// What is not named so, but is told of with that word.
    void addTexts(Table& table) const
    {
        for (auto const& service : catalogue::services()) {
            if (!matches(service.name) && matches(service.about)) {
                table.add({std::string(service.name), "service", std::string(service.about)});
            }
        }
        for (auto const& resource : catalogue::resources()) {
            if (!isNamed(resource) && matches(resource.about)) {
                table.add({nameOf(&resource), "resource", std::string(resource.about)});
            }
            for (auto const& field : resource.fields) {
                if (!isNamed(field) && matches(field.note)) {
                    table.add({nameOf(FieldOf{&resource, &field}), std::string(wordOf(field.kind)),
                               std::string(field.note)});
                }
            }
        }
    }

    [[nodiscard]] bool isNamed(catalogue::Resource const& resource) const
    {
        // The service is part of the name only for a word that asks for it, or else `radio` would
        // find each of its resources.
        bool const whole = m_lowered.find('/') != std::string::npos;
        return matches(whole ? nameOf(&resource) : std::string(resource.resourceKey)) ||
               matches(resource.name) || matches(resource.element);
    }

    [[nodiscard]] bool isNamed(catalogue::Field const& field) const
    {
        return matches(field.key) || wordOf(field.kind) == m_lowered;
    }

    [[nodiscard]] bool matches(std::string_view name) const
    {
        return lowered(name).find(m_lowered) != std::string::npos;
    }

    static std::vector<std::string_view> allKeys()
    {
        std::vector<std::string_view> keys;
        for (auto const& resource : catalogue::resources()) {
            keys.push_back(resource.resourceKey);
            for (auto const& field : resource.fields) {
                keys.push_back(field.key);
            }
        }
        std::sort(keys.begin(), keys.end());
        keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
        return keys;
    }

    std::string m_word;
    std::string m_lowered;
};

} // namespace

std::unique_ptr<Command> makeFindCommand()
{
    return std::make_unique<FindCommand>();
}

} // namespace kiv
