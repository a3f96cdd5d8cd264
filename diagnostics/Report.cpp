#include "diagnostics/Report.h"

#include "diagnostics/Clock.h"
#include "diagnostics/Line.h"
#include "diagnostics/Origin.h"
#include "diagnostics/Words.h"
#include "json/Maps.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cerrno>
#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace kiv::diagnostics {

namespace {

/// More different findings than that are counted, and not told one by one.
constexpr std::size_t mostTold = 10'000;
constexpr std::size_t defaultLimit = 64UL * 1024 * 1024;

std::string settingOf(char const* name)
{
    char const* const value = ::secure_getenv(name);
    return value == nullptr ? std::string() : value;
}

std::size_t recordLimit()
{
    std::string const text = settingOf("ZEL_KIV_RECORD_LIMIT");
    std::size_t limit = defaultLimit;
    auto const result = std::from_chars(text.data(), text.data() + text.size(), limit);
    if (!text.empty() && (result.ec != std::errc() || result.ptr != text.data() + text.size())) {
        say("ZEL_KIV_RECORD_LIMIT: '" + escaped(text) + "' is no number of bytes");
        return defaultLimit;
    }
    return limit;
}

std::string placeOf(Finding const& finding)
{
    std::string top = nameOf(finding.top);
    if (finding.path == "the top") {
        return top;
    }
    return top + (finding.path.starts_with('[') ? " " : ".") + escaped(finding.path);
}

std::string textOf(Finding const& finding)
{
    std::string text = placeOf(finding) + ": " + std::string(wordOf(finding.fate)) + " [" +
                       std::string(rowOf(finding.id).name) + "]: " + finding.stands + "; " +
                       finding.becomes;
    return finding.meant.empty() ? text : text + "; " + finding.meant;
}

using Fields = std::initializer_list<std::pair<std::string_view, std::string_view>>;

/// Fields of a JSON object, without its braces.
std::string jsonFields(Fields fields)
{
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    writer.StartObject();
    for (auto const& [key, text] : fields) {
        writer.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
        writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
    }
    writer.EndObject();
    return {buffer.GetString() + 1, buffer.GetSize() - 2};
}

/// What every line of JSON begins with.
Line& begin(Line& line, std::string_view program)
{
    return line << R"({"time":")" << TimeText().view() << R"(","pid":)"
                << static_cast<std::uint64_t>(::getpid()) << ",\"program\":" << program;
}

Line& begin(Line& line)
{
    return line << "zel-kiv[" << static_cast<std::uint64_t>(::getpid()) << "]: ";
}

/// What makes two findings the same.
std::string identityOf(Finding const& finding)
{
    return nameOf(finding.top) + '\n' + finding.pattern + '\n' + std::string(wordOf(finding.fate)) +
           '\n' + finding.stands;
}

} // namespace

Report::Report()
    : m_program(jsonFields({{"", program_invocation_short_name}}).substr(3)) // behind `"":`
{
    std::string const fault = m_ignored.add(settingOf("ZEL_KIV_IGNORE"));
    if (!fault.empty()) {
        say("ZEL_KIV_IGNORE: " + fault);
    }
    std::string file = settingOf("ZEL_KIV_DIAGNOSTICS");
    m_isJson = !file.empty();
    if (m_isJson) {
        m_sink.open(std::move(file));
    }
    std::string folder = settingOf("ZEL_KIV_RECORD");
    if (!folder.empty()) {
        m_record = std::make_unique<Record>(std::move(folder), recordLimit());
    }
    if (!mapsAreWalkable) {
        say("the platform's objects cannot be walked: unknown keys are not told, and a record holds "
            "no objects");
    }
}

void Report::onFinding(Finding const& finding)
{
    if (rowOf(finding.id).isQuiet || m_ignored.holds(finding)) {
        return;
    }
    m_totals.addFinding(finding.top);
    {
        std::lock_guard const lock(m_mutex);
        auto const known = m_told.find(identityOf(finding));
        if (known != m_told.end()) {
            ++known->second->times;
        } else if (m_told.size() == mostTold) {
            ++m_untold;
        } else {
            auto* const told = new Told{textOf(finding),
                                        jsonFields({{"id", rowOf(finding.id).name},
                                                    {"class", nameOf(finding.top)},
                                                    {"path", finding.path},
                                                    {"fate", wordOf(finding.fate)}}),
                                        {1},
                                        m_last};
            m_told.emplace(identityOf(finding), told);
            m_last = told;
            tell(finding, *told);
        }
    }
    if (finding.fate == Fate::Forbidden) {
        say(textOf(finding) + "; called from " + originText());
        finish();
        std::abort();
    }
}

void Report::tell(Finding const& finding, Told const& told)
{
    Line head;
    if (m_isJson) {
        begin(head, m_program) << ",";
        std::string line(head.ended());
        line.pop_back();
        line.append(told.fields)
            .append(",")
            .append(jsonFields({{"stands", finding.stands},
                                {"becomes", finding.becomes},
                                {"meant", finding.meant}}))
            .append("}\n");
        m_sink.write(line);
    } else if (finding.fate != Fate::Forbidden) {
        begin(head);
        std::string line(head.ended());
        line.pop_back();
        m_sink.write(line + told.text + '\n');
    }
}

void Report::onStart(Call const& call)
{
    Totals::start(call);
    if (m_record && call.isIn) {
        m_record->add(call);
    }
}

void Report::onEnd(Call const& call)
{
    m_totals.add(call);
    if (m_record && !call.isIn) {
        m_record->add(call);
    }
}

void Report::finish()
{
    if (m_isFinished.exchange(true)) {
        return;
    }
    for (auto const* told = m_last.load(); told != nullptr; told = told->next) {
        if (told->times > 1) {
            Line line;
            putTimes(line, *told);
            m_sink.write(line.ended());
        }
    }
    if (m_untold > 0) {
        Line line;
        putUntold(line);
        m_sink.write(line.ended());
    }
    for (std::size_t i = 0; i < m_totals.size(); ++i) {
        auto const& row = m_totals.row(i);
        if (row.in + row.out > 0 || row.findings > 0) {
            Line line;
            putTotals(line, i);
            m_sink.write(line.ended());
        }
    }
}

void Report::putTimes(Line& line, Told const& told) const
{
    std::uint64_t const times = told.times;
    m_isJson ? begin(line, m_program) << "," << told.fields << ",\"times\":" << times << "}"
             : begin(line) << times << " times: " << told.text;
}

void Report::putUntold(Line& line) const
{
    std::uint64_t const untold = m_untold;
    m_isJson ? begin(line, m_program) << ",\"untold\":" << untold << "}"
             : begin(line) << untold << " more findings, of other kinds";
}

void Report::putTotals(Line& line, std::size_t index) const
{
    auto const& row = m_totals.row(index);
    auto const [service, resource] = Totals::nameAt(index);
    std::string_view const slash = resource.empty() ? "" : "/";
    if (m_isJson) {
        begin(line, m_program) << R"(,"class":")" << service << slash << resource << R"(","in":)"
                               << row.in << ",\"out\":" << row.out
                               << ",\"elements\":" << row.elements
                               << ",\"microseconds\":" << row.nanoseconds / 1000
                               << ",\"findings\":" << row.findings << "}";
    } else {
        begin(line) << service << slash << resource << ": in " << row.in << ", out " << row.out
                    << ", elements " << row.elements << ", microseconds " << row.nanoseconds / 1000
                    << ", findings " << row.findings;
    }
}

} // namespace kiv::diagnostics
