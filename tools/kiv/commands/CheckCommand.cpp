#include "diagnostics/Ignored.h"
#include "frame/IObjectBase.h"
#include "json/JsonWriter.h"
#include "json/Make.h"
#include "json/TypeNames.h"
#include "text/Failure.h"
#include "text/Path.h"
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

using diagnostics::Fate;
using diagnostics::Finding;
using diagnostics::Id;

std::unique_ptr<data::Value> valueOf(std::string const& file, Placed const& placed)
{
    Finding const& finding = placed.finding;
    auto value = std::make_unique<data::Object>();
    value->setNew("becomes", json::text(finding.becomes).release());
    value->setNew("column", json::number(static_cast<int>(placed.position.column)).release());
    value->setNew("fate", json::text(wordOf(finding.fate)).release());
    value->setNew("file", json::text(file).release());
    value->setNew("id", json::text(rowOf(finding.id).name).release());
    value->setNew("line", json::number(static_cast<int>(placed.position.line)).release());
    value->setNew("meant", json::text(finding.meant).release());
    value->setNew("path", json::text(finding.path).release());
    value->setNew("stands", json::text(finding.stands).release());
    return value;
}

/// A finding about the text alone, which the library never comes across.
Placed textFinding(Fate fate, Id id, json::Position position, std::string const& path,
                   std::string stands, std::string becomes, std::string meant)
{
    Finding finding;
    finding.fate = fate;
    finding.id = id;
    finding.path = path;
    finding.stands = std::move(stands);
    finding.becomes = std::move(becomes);
    finding.meant = std::move(meant);
    return {position, std::move(finding)};
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
        arguments.optional(
            "--ignore", m_ignore,
            "Findings to pass over, by id: unknown-key,odd-uri:radio/presets.station");
        arguments.flag("--json", m_json, "Write the findings as JSON");
    }

    Exit run(Console& console) override
    {
        catalogue::Resource const& resource = resourceNamed(m_resource);
        ignore();
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        if (m_json) {
            writer->startArray();
        }
        for (std::string const& file : m_files) {
            checkFile(resource, file, [&](std::string const& name, Placed const& placed) {
                if (isPassedOver(placed.finding)) {
                    return;
                }
                count(placed.finding);
                m_json ? writer->entry(valueOf(name, placed).get()) : print(console, name, placed);
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
    using Reporter = std::function<void(std::string const& file, Placed const& placed)>;

    void ignore()
    {
        std::string const fault = m_ignored.add(m_ignore);
        if (!fault.empty()) {
            throw Failure("--ignore: " + fault);
        }
    }

    [[nodiscard]] bool isPassedOver(Finding const& finding) const
    {
        return (rowOf(finding.id).isQuiet && !m_strict) || m_ignored.holds(finding);
    }

    static void checkFile(catalogue::Resource const& resource, std::string const& path,
                          Reporter const& report)
    {
        InputFile input = openWithProgress(path);
        std::vector<Placed> findings;
        json::WideIntegerHandler const onWide = [&](json::Position position, std::string const& at,
                                                    std::string const& number) {
            findings.push_back(textFinding(Fate::Forbidden, Id::WideNumber, position, at,
                                           "the integer " + number,
                                           "no value holds it: kiv convert refuses it",
                                           "integers have 32 bits: -2147483648 to 2147483647"));
        };
        json::RepeatedKeyHandler const onRepeated =
            [&](json::Position before, std::string const& at, json::Position again) {
                findings.push_back(textFinding(Fate::Lost, Id::RepeatedKey, before, at,
                                               "a key that stands here again in line " +
                                                   std::to_string(again.line),
                                               "only the last value counts", ""));
            };
        json::Document const rest = json::readEntries(
            input.name, std::move(input.source),
            [&](json::Entry const& entry, json::Places const& places) {
                static_cast<void>(readEntry(resource, entry, places, findings));
                tellInOrder(findings, input.name, report);
            },
            onWide, onRepeated);
        if (typeOf(rest.value.get()) != Type::Array) {
            findings.push_back(
                textFinding(Fate::Lost, Id::WrongForm, rest.position, Path().text(),
                            std::string(typeName(rest.value.get())) + " where an array is wanted",
                            "the resource stays empty", "put the elements in brackets"));
        }
        tellInOrder(findings, input.name, report);
    }

    /// In the order of the file, which the library does not keep to.
    static void tellInOrder(std::vector<Placed>& findings, std::string const& file,
                            Reporter const& report)
    {
        std::ranges::stable_sort(findings, {}, [](Placed const& each) {
            return std::pair(each.position.line, each.position.column);
        });
        for (Placed const& placed : findings) {
            report(file, placed);
        }
        findings.clear();
    }

    void count(Finding const& finding)
    {
        ++(finding.fate == Fate::Suspect ? m_suspects : m_findings);
    }

    static void print(Console& console, std::string const& file, Placed const& placed)
    {
        Finding const& finding = placed.finding;
        bool const isError = finding.fate == Fate::Forbidden;
        std::string const word =
            std::string(wordOf(finding.fate)) + " [" + std::string(rowOf(finding.id).name) + "]:";
        console.output.write(console.style.strong(json::placeText(file, placed.position) + ":") +
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
    std::string m_ignore;
    diagnostics::Ignored m_ignored;
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
