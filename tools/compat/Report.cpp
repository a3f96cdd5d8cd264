#include "tools/compat/Report.h"

#include <utility>

namespace compat {
namespace {

namespace data = kiv::data;
namespace json = kiv::json;

json::ValuePointer wordsOf(Breaks breaks)
{
    auto list = std::make_unique<data::Array>();
    for (Breaks const each :
         {Breaks{.wire = true}, Breaks{.source = true}, Breaks{.binary = true}}) {
        if (!(breaks - (everything - each)).any()) {
            continue;
        }
        list->pushNew(json::text(toText(each)).release());
    }
    return list;
}

std::string_view wordOf(Step step)
{
    switch (step) {
    case Step::None:
        return "none";
    case Step::Patch:
        return "patch";
    case Step::Minor:
        return "minor";
    case Step::Major:
        break;
    }
    return "major";
}

/// Keys come in byte order, as in all that kiv writes.
json::ValuePointer toJson(kivgen::SourcePosition const& place)
{
    auto value = std::make_unique<data::Object>();
    value->setNew("column", json::number(static_cast<int>(place.column)).release());
    value->setNew("file", json::text(place.file).release());
    value->setNew("line", json::number(static_cast<int>(place.line)).release());
    return value;
}

json::ValuePointer toJson(Change const& change)
{
    auto value = std::make_unique<data::Object>();
    value->setNew("breaks", wordsOf(change.rule->breaks).release());
    value->setNew("do", json::text(change.rule->todo).release());
    if (!change.is.file.empty()) {
        value->setNew("is", toJson(change.is).release());
    }
    value->setNew("rule", json::text(change.rule->id).release());
    value->setNew("step", json::text(wordOf(change.rule->step)).release());
    value->setNew("subject", json::text(change.subject).release());
    if (!change.was.file.empty()) {
        value->setNew("was", toJson(change.was).release());
    }
    value->setNew("what", json::text(inWords(change)).release());
    value->setNew("why", json::text(change.rule->why).release());
    return value;
}

/// The changes of one sort as a list, or nothing.
std::string section(std::string_view title, std::vector<Change> const& changes, bool areBreaking)
{
    std::string text;
    for (Change const& change : changes) {
        if (change.rule->breaks.any() != areBreaking) {
            continue;
        }
        text += "- `" + change.subject + "`: " + inWords(change) + ".";
        if (areBreaking) {
            text +=
                " Breaks " + toText(change.rule->breaks) + ". " + std::string(change.rule->todo);
        }
        text += '\n';
    }
    return text.empty() ? text : "### " + std::string(title) + "\n\n" + text + '\n';
}

} // namespace

std::string inWords(Change const& change)
{
    return std::string(change.rule->what) + (change.what.empty() ? "" : ": " + change.what);
}

std::string nextInWords(Report const& report)
{
    Step const step = stepOf(report.changes);
    std::string const number =
        report.was ? toText(next(*report.was, step)) + (step == Step::None ? "" : ", ") : "";
    switch (step) {
    case Step::None:
        break;
    case Step::Patch:
        return number + "a patch";
    case Step::Minor:
        return number + "a minor one";
    case Step::Major:
        return number + "a major one, with another SONAME";
    }
    return number.empty() ? "the same" : number;
}

std::string toText(kivgen::SourcePosition const& place)
{
    return place.line == 0
               ? place.file
               : place.file + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

json::ValuePointer toJson(Report const& report)
{
    auto changes = std::make_unique<data::Array>();
    for (Change const& change : report.changes) {
        changes->pushNew(toJson(change).release());
    }
    Step const step = stepOf(report.changes);
    auto value = std::make_unique<data::Object>();
    value->setNew("changes", changes.release());
    if (report.was) {
        value->setNew("next", json::text(toText(next(*report.was, step))).release());
    }
    value->setNew("step", json::text(wordOf(step)).release());
    return value;
}

std::string toMarkdown(Report const& report)
{
    return section("Breaking", report.changes, true) + section("Other", report.changes, false);
}

json::ValuePointer rulesToJson()
{
    auto list = std::make_unique<data::Array>();
    for (Rule const& rule : rules()) {
        auto value = std::make_unique<data::Object>();
        value->setNew("breaks", wordsOf(rule.breaks).release());
        value->setNew("do", json::text(rule.todo).release());
        value->setNew("rule", json::text(rule.id).release());
        value->setNew("step", json::text(wordOf(rule.step)).release());
        value->setNew("what", json::text(rule.what).release());
        value->setNew("why", json::text(rule.why).release());
        list->pushNew(value.release());
    }
    return list;
}

} // namespace compat
