#include "generator/model/Snapshot.h"
#include "json/JsonWriter.h"
#include "text/Failure.h"
#include "text/Phrases.h"
#include "tools/compat/Report.h"
#include "tools/compat/Side.h"
#include "tools/kiv/Command.h"

#include <algorithm>
#include <stdexcept>
#include <unistd.h>

namespace kiv {

namespace {

using compat::Breaks;
using compat::Change;
using compat::Report;
using compat::Rule;
using compat::Version;

class CompatCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "compat"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Show what a change of the definitions breaks";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv compat services --against HEAD";
    }

    void declare(commandline::Arguments arguments) override
    {
        arguments.optional("OLD", m_first,
                           "A folder of definitions, or the file with those of a release");
        arguments.optional("NEW", m_second, "Another one; alone, it is the first");
        arguments.optional("--against", m_revision,
                           "Compare the one folder with what git has of it in this revision");
        arguments.optional("--allow", m_allow,
                           "What may break, with commas between: wire, source, binary");
        arguments.optional("--release", m_release,
                           "The version that the new side comes out as: all may break that it "
                           "gives notice of");
        arguments.flag("--snapshot", m_snapshot,
                       "Write the one folder as the file of the release, and compare nothing");
        arguments.flag("--rules", m_rules, "List what is looked for, and compare nothing");
        arguments.flag("--json", m_json, "Write JSON");
        arguments.flag("--markdown", m_markdown, "Write Markdown, for a list of changes");
    }

    Exit run(Console& console) override
    {
        auto const allowed = allowedBreaks();
        auto const release = releaseVersion();
        if (m_rules) {
            printRules(console);
            return Exit::Clean;
        }
        try {
            return work(console, allowed, release);
        } catch (compat::Faulty const& fault) {
            Output messages(STDERR_FILENO);
            for (kivgen::Fault const& each : fault.faults()) {
                messages.write(kivgen::toMessage(each) + '\n');
            }
            messages.flush();
            throw;
        }
    }

private:
    Exit work(Console& console, Breaks allowed, std::optional<Version> const& release) const
    {
        if (m_snapshot) {
            printSnapshot(console);
            return Exit::Clean;
        }
        Report const report = compare();
        if (release && !report.was) {
            throw Failure(
                "'" + m_first +
                "' does not tell which version it is, so --release has "
                "nothing to be measured by; kiv compat --snapshot writes a file that does");
        }
        print(console, report);
        return release ? judgeRelease(console, report, *release) : judge(report, allowed);
    }

    [[nodiscard]] Breaks allowedBreaks() const
    {
        try {
            return m_allow.empty() ? compat::nothing : compat::breaksOf(m_allow);
        } catch (std::invalid_argument const& fault) {
            throw Failure(std::string("--allow: ") + fault.what());
        }
    }

    [[nodiscard]] std::optional<Version> releaseVersion() const
    {
        auto const version = compat::versionOf(m_release);
        if (!version && (m_snapshot || !m_release.empty())) {
            throw Failure("--release: '" + m_release + "' is no version; one is written 1.2.0");
        }
        return version;
    }

    [[nodiscard]] Report compare() const
    {
        bool const isOne = m_snapshot || !m_revision.empty();
        if (m_first.empty() || isOne != m_second.empty()) {
            throw Failure("two sides are compared: kiv compat OLD NEW, or "
                          "kiv compat FOLDER --against REVISION");
        }
        auto const was =
            isOne ? compat::readRevision(m_first, m_revision) : compat::readSide(m_first);
        auto const is = compat::readSide(isOne ? m_first : m_second);
        return {compat::changesBetween(was.interface, is.interface), was.release};
    }

    void printRules(Console& console) const
    {
        if (m_json) {
            json::makeWriter(console.output, json::Layout::Indented)
                ->document(compat::rulesToJson().get());
            return;
        }
        for (Rule const& rule : compat::rules()) {
            printFirstLine(console, std::string(rule.id), rule, std::string(rule.what));
            printRest(console, rule);
        }
    }

    void printSnapshot(Console& console) const
    {
        if (m_first.empty() || !m_second.empty()) {
            throw Failure("one folder is written: kiv compat --snapshot FOLDER --release VERSION");
        }
        console.output.write(kivgen::snapshotOf(compat::readSide(m_first).interface, m_release));
    }

    void print(Console& console, Report const& report) const
    {
        if (m_json) {
            json::makeWriter(console.output, json::Layout::Indented)
                ->document(compat::toJson(report).get());
        } else if (m_markdown) {
            console.output.write(compat::toMarkdown(report));
        } else if (!report.changes.empty()) {
            for (Change const& change : report.changes) {
                print(console, change);
            }
            printTotals(console, report);
        }
    }

    static void print(Console& console, Change const& change)
    {
        bool const isGone = change.is.file.empty();
        printFirstLine(console, compat::toText(isGone ? change.was : change.is), *change.rule,
                       change.subject + ": " + compat::inWords(change) + " [" +
                           std::string(change.rule->id) + "]");
        if (!change.rule->breaks.any()) {
            return;
        }
        if (!isGone && !change.was.file.empty()) {
            console.output.write("    was: " + compat::toText(change.was) + "\n");
        }
        printRest(console, *change.rule);
    }

    static void printFirstLine(Console& console, std::string const& where, Rule const& rule,
                               std::string const& what)
    {
        bool const breaks = rule.breaks.any();
        std::string const verdict =
            (breaks ? "breaks " : "") + compat::toText(rule.breaks) + (breaks ? ":" : " breaks:");
        console.output.write(console.style.strong(where + ":") + " " +
                             (breaks ? console.style.error(verdict) : verdict) + " " + what + "\n");
    }

    static void printRest(Console& console, Rule const& rule)
    {
        console.output.write("    why: " + std::string(rule.why) + "\n");
        if (!rule.todo.empty()) {
            console.output.write("    do:  " + std::string(rule.todo) + "\n");
        }
    }

    static void printTotals(Console& console, Report const& report)
    {
        Breaks all;
        for (Change const& change : report.changes) {
            all = all | change.rule->breaks;
        }
        console.output.write(counted(report.changes.size(), "change") + ", breaking " +
                             compat::toText(all) + "; the next version is " +
                             compat::nextInWords(report) + "\n");
    }

    /// Nothing may break but what is allowed.
    static Exit judge(Report const& report, Breaks allowed)
    {
        bool const breaks = std::ranges::any_of(report.changes, [&](Change const& change) {
            return (change.rule->breaks - allowed).any();
        });
        return breaks ? Exit::Findings : Exit::Clean;
    }

    /// Everything may break that the version gives notice of.
    Exit judgeRelease(Console& console, Report const& report, Version const& release) const
    {
        Version const least = compat::next(*report.was, compat::stepOf(report.changes));
        if (!(release < least)) {
            return Exit::Clean;
        }
        if (!m_json && !m_markdown) {
            console.output.write(
                console.style.error("the version " + compat::toText(release) + " is too low:") +
                " after " + compat::toText(*report.was) + " comes " + compat::toText(least) +
                " at least\n");
        }
        return Exit::Findings;
    }

    std::string m_first;
    std::string m_second;
    std::string m_revision;
    std::string m_allow;
    std::string m_release;
    bool m_snapshot = false;
    bool m_rules = false;
    bool m_json = false;
    bool m_markdown = false;
};

} // namespace

std::unique_ptr<Command> makeCompatCommand()
{
    return std::make_unique<CompatCommand>();
}

} // namespace kiv
