#include "diagnostics/Ignored.h"
#include "frame/IObjectBase.h"
#include "json/JsonWriter.h"
#include "json/Make.h"
#include "json/TypeNames.h"
#include "text/Failure.h"
#include "text/Path.h"
#include "text/Phrases.h"
#include "text/Printable.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/Documents.h"
#include "tools/kiv/Interrupt.h"
#include "tools/kiv/check/PartedLists.h"
#include "tools/kiv/check/Platform.h"
#include "tools/kiv/check/TextFindings.h"

#include <algorithm>
#include <functional>
#include <optional>
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

/// What is wrong with a file, beside its findings.
std::unique_ptr<data::Value> valueOf(Failure const& fault)
{
    return json::Members()
        .with("fate", "fault")
        .with("stands", fault.what())
        .with("where", fault.where())
        .take();
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
        m_options.declare(arguments);
        arguments.required("FILE", m_files, "JSON files, or - for standard input");
        arguments.flag("--strict", m_strict, "Count what is merely suspect as a finding");
        arguments.optional(
            "--ignore", m_ignore,
            "Findings to pass over, by id: unknown-key,odd-uri:radio/presets.station");
        arguments.optional("--platform", m_platformReport,
                           "What a platform check has written with --json: what is read is told of "
                           "that platform");
        arguments.flag("--json", m_json, "Write the findings as JSON");
    }

    Exit run(Console& console) override
    {
        ignore();
        if (!m_platformReport.empty()) {
            m_platform.emplace(m_platformReport);
        }
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        m_reporter = [&](std::string const& file, Placed const& placed) {
            m_json ? writer->entry(valueOf(file, placed).get()) : print(console, file, placed);
        };
        m_complain = [&](Failure const& fault) {
            ++m_faults;
            m_json ? writer->entry(valueOf(fault).get()) : console.complain(fault);
        };
        m_flush = [&] { console.output.flush(); };
        if (m_json) {
            writer->startArray();
        }
        bool const isInterrupted = !checkFiles();
        if (m_json) {
            writer->endArray();
        } else {
            printTotals(console);
        }
        if (isInterrupted) {
            return Exit::Interrupted;
        }
        if (m_faults > 0) {
            return Exit::Unable;
        }
        return m_findings > 0 || (m_strict && m_suspects > 0) ? Exit::Findings : Exit::Clean;
    }

private:
    /// Whatever is wrong with one file, the others are checked; false if it was interrupted.
    bool checkFiles()
    {
        try {
            for (std::string const& file : m_files) {
                checkOrComplain(file);
            }
        } catch (Interrupted const&) {
            return false;
        }
        return true;
    }

    void checkOrComplain(std::string const& file)
    {
        try {
            checkFile(file);
        } catch (Failure const& fault) {
            tellInOrder(file);
            m_complain(fault);
        } catch (Interrupted const&) {
            tellInOrder(file);
            throw;
        }
    }

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

    /// While the value that it is about is still there.
    void tellOfPlatform(Placed& placed) const
    {
        if (m_platform) {
            m_platform->apply(placed.finding);
        }
    }

    void checkFile(std::string const& file)
    {
        PartedLists lists;
        DocumentHandlers handlers;
        handlers.onPart = [&](DocumentPart const& given) {
            lists.read(given, [&](Placed& placed) { tellOfPlatform(placed); });
        };
        handlers.onEntry = [&](DocumentEntry const& given) {
            auto const parts = lists.finish(given.entry.given, m_found);
            auto const keep = [&](Finding const& finding, Locator const& locator) {
                m_found.push_back({locator.positionOf(finding), finding});
                tellOfPlatform(m_found.back());
            };
            static_cast<void>(readEntry(given, keep, parts));
            tellInOrder(given.file);
        };
        handlers.onWrongForm = [&](WrongForm const& form) {
            m_found.push_back(textFinding(Fate::Lost, Id::WrongForm, form.position, form.path,
                                          form.stands, "nothing is read of it", form.meant));
            tellInOrder(form.file);
        };
        handlers.onBadLine = [&](Failure const& fault) {
            tellInOrder(file);
            m_complain(fault);
        };
        handlers.onMisfit = [&](json::Misfit misfit, json::Position position,
                                std::string const& path, std::string const& number) {
            m_misfits.push_back(misfitFinding(misfit, position, path, number));
        };
        handlers.onRepeatedKey = [&](json::Position before, std::string const& path,
                                     json::Position again) {
            m_found.push_back(
                textFinding(Fate::Lost, Id::RepeatedKey, before, path,
                            "a key that stands here again in line " + std::to_string(again.line),
                            "only the last value counts", ""));
        };
        readDocuments(file, m_options, handlers);
        tellInOrder(file == "-" ? "<stdin>" : file);
    }

    /// In the order of the file, which the library does not keep to. What stands in for a number
    /// that no value holds has no findings of its own.
    void tellInOrder(std::string const& file)
    {
        auto const place = [](Placed const& each) {
            return std::pair(each.position.line, each.position.column);
        };
        std::erase_if(m_found, [&](Placed const& each) {
            return each.finding.id != Id::UnknownKey &&
                   std::ranges::find(m_misfits, place(each), place) != m_misfits.end();
        });
        m_found.insert(m_found.end(), m_misfits.begin(), m_misfits.end());
        m_misfits.clear();
        std::ranges::stable_sort(m_found, {}, place);
        bool const isAny = !m_found.empty();
        for (Placed const& placed : std::exchange(m_found, {})) {
            if (!isPassedOver(placed.finding)) {
                count(placed.finding);
                m_reporter(file, placed);
            }
        }
        if (isAny) { // somebody may wait for it, through a pipe as well
            m_flush();
        }
    }

    void count(Finding const& finding)
    {
        m_isReadOtherwise = m_isReadOtherwise || finding.id == Id::OtherType;
        ++(finding.fate == Fate::Suspect ? m_suspects : m_findings);
    }

    static void print(Console& console, std::string const& file, Placed const& placed)
    {
        Finding const& finding = placed.finding;
        bool const isError = finding.fate == Fate::Forbidden;
        std::string const word =
            std::string(wordOf(finding.fate)) + " [" + std::string(rowOf(finding.id).name) + "]:";
        std::string const words = finding.path + " is " + finding.stands + "; " + finding.becomes +
                                  (finding.meant.empty() ? "" : "; " + finding.meant);
        console.output.write(
            console.style.strong(printable(json::placeText(file, placed.position)) + ":") + " " +
            (isError ? console.style.error(word) : word) + " " + printable(words) + "\n");
    }

    void printTotals(Console& console) const
    {
        std::string const suspects =
            m_suspects == 0 ? "" : ", " + counted(m_suspects, "suspect place");
        std::string const faults = m_faults == 0 ? "" : ", " + counted(m_faults, "fault");
        console.output.write(counted(m_findings, "finding") + suspects + faults + " in " +
                             counted(m_files.size(), "file") + "\n");
        if (m_isReadOtherwise && !m_platform) {
            console.output.write("what a value of another type reads as is up to the platform's "
                                 "value library; this is what the one at hand makes of it\n");
        }
    }

    DocumentOptions m_options;
    std::vector<std::string> m_files;
    std::string m_ignore;
    std::string m_platformReport;
    std::optional<Platform> m_platform;
    diagnostics::Ignored m_ignored;
    bool m_strict = false;
    bool m_json = false;
    std::size_t m_findings = 0;
    std::size_t m_suspects = 0;
    std::size_t m_faults = 0;       ///< places from which on nothing could be read
    bool m_isReadOtherwise = false; ///< some value was of another type
    std::vector<Placed> m_found;    ///< in the entry that is read just now
    std::vector<Placed> m_misfits;
    std::function<void(std::string const& file, Placed const& placed)> m_reporter;
    std::function<void(Failure const& fault)> m_complain;
    std::function<void()> m_flush;
};

} // namespace

std::unique_ptr<Command> makeCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace kiv
