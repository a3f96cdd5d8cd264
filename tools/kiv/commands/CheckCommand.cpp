#include "json/JsonWriter.h"
#include "json/Make.h"
#include "json/TypeNames.h"
#include "text/Phrases.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Progress.h"
#include "tools/kiv/check/Checker.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace kiv {

namespace {

std::unique_ptr<data::Value> valueOf(std::string const& file, Finding const& finding)
{
    auto value = std::make_unique<data::Object>();
    value->setNew("becomes", json::text(finding.becomes).release());
    value->setNew("column", json::number(static_cast<int>(finding.position.column)).release());
    value->setNew("fate", json::text(wordOf(finding.fate)).release());
    value->setNew("file", json::text(file).release());
    value->setNew("line", json::number(static_cast<int>(finding.position.line)).release());
    value->setNew("meant", json::text(finding.meant).release());
    value->setNew("path", json::text(finding.path).release());
    value->setNew("stands", json::text(finding.stands).release());
    return value;
}

class CheckCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "check"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Show where the library would drop, bend or invent something";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv check gearbox/transmissions message.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.required("RESOURCE", m_resource, "The resource, as in uris");
        arguments.required("FILE", m_files, "JSON files, or - for standard input");
        arguments.flag("--strict", m_strict, "Count what is merely suspect as a finding");
        arguments.flag("--json", m_json, "Write the findings as JSON");
    }

    Exit run(Console& console) override
    {
        catalogue::Resource const& resource = resourceNamed(m_resource);
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        if (m_json) {
            writer->startArray();
        }
        for (std::string const& file : m_files) {
            checkFile(resource, file, [&](std::string const& name, Finding const& finding) {
                count(finding);
                m_json ? writer->entry(valueOf(name, finding).get())
                       : print(console, name, finding);
            });
        }
        if (m_json) {
            writer->endArray();
        } else {
            printTotals(console);
        }
        return m_findings > 0 || (m_strict && m_suspects > 0) ? Exit::Findings : Exit::Clean;
    }

private:
    using Reporter = std::function<void(std::string const& file, Finding const& finding)>;

    static void checkFile(catalogue::Resource const& resource, std::string const& path,
                          Reporter const& report)
    {
        InputFile input = openWithProgress(path);
        std::vector<Finding> findings;
        FindingHandler const handler = [&](Finding finding) {
            findings.push_back(std::move(finding));
        };
        json::WideIntegerHandler const onWide = [&](json::Position position, std::string const& at,
                                                    std::string const& number) {
            handler({Fate::Forbidden, position, at, "the integer " + number,
                     "no value holds it: kiv convert refuses it",
                     "integers have 32 bits: -2147483648 to 2147483647"});
        };
        json::Document const rest = json::readEntries(
            input.name, std::move(input.source),
            [&](json::Entry const& entry, json::Places const& places) {
                Checker(places, handler).check(resource, entry);
                tellInOrder(findings, input.name, report);
            },
            onWide);
        bool const isArray =
            rest.value != nullptr && rest.value->getType() == data::ValueType::Array;
        if (!isArray) {
            handler({Fate::Lost, rest.position, Path().text(),
                     std::string(typeName(rest.value.get())) + " where an array is wanted",
                     "the resource stays empty", "put the elements in brackets"});
        }
        tellInOrder(findings, input.name, report);
    }

    /// In the order of the file, which the library does not keep to.
    static void tellInOrder(std::vector<Finding>& findings, std::string const& file,
                            Reporter const& report)
    {
        std::ranges::stable_sort(findings, {}, [](Finding const& each) {
            return std::pair(each.position.line, each.position.column);
        });
        for (Finding const& finding : findings) {
            report(file, finding);
        }
        findings.clear();
    }

    void count(Finding const& finding)
    {
        ++(finding.fate == Fate::Suspect ? m_suspects : m_findings);
    }

    static void print(Console& console, std::string const& file, Finding const& finding)
    {
        bool const isError = finding.fate == Fate::Forbidden;
        std::string const word = std::string(wordOf(finding.fate)) + ":";
        console.output.write(console.style.strong(json::placeText(file, finding.position) + ":") +
                             " " + (isError ? console.style.error(word) : word) + " " +
                             finding.path + " is " + finding.stands + "; " + finding.becomes +
                             (finding.meant.empty() ? "" : "; " + finding.meant) + "\n");
    }

    void printTotals(Console& console) const
    {
        std::string const suspects =
            m_suspects == 0 ? "" : ", " + counted(m_suspects, "suspect place");
        console.output.write(counted(m_findings, "finding") + suspects + " in " +
                             counted(m_files.size(), "file") + "\n");
    }

    std::string m_resource;
    std::vector<std::string> m_files;
    bool m_strict = false;
    bool m_json = false;
    std::size_t m_findings = 0;
    std::size_t m_suspects = 0;
};

} // namespace

std::unique_ptr<Command> makeCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace kiv
