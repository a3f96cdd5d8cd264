#include "diagnostics/Record.h"

#include "diagnostics/Clock.h"
#include "json/JsonWriter.h"
#include "text/Failure.h"

#include <array>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace kiv::diagnostics {

namespace {

/// By the depth of an element; what lies beyond the three works as the first.
constexpr std::array<std::string_view, 3> forms{"full", "reference", "shallow"};

std::string_view formOf(Call const& call)
{
    auto const type = static_cast<std::size_t>(call.form);
    return type < forms.size() ? forms[type] : forms.front();
}

/// The value in JSON; null, and why, if it cannot be written so.
std::string jsonOf(zel::dataformats::data::Value const* value)
{
    std::string text;
    try {
        Output output(text);
        json::makeWriter(output, json::Layout::Compact)->entry(value);
        output.flush();
        return text;
    } catch (Failure const& failure) {
        return R"(null,"fault":")" + std::string(failure.what()) + '"';
    }
}

std::string lineOf(Call const& call)
{
    std::string line = R"({"time":")" + std::string(TimeText().view()) + R"(","direction":")";
    line.append(call.isIn ? "in" : "out").append(R"(","resource":")").append(nameOf(call.what));
    line.append(R"(","of":")").append(call.isResource ? "resource" : "element");
    line.append(R"(","form":")").append(formOf(call)).append(R"(","value":)");
    line.append(jsonOf(call.value)).append("}\n");
    return line;
}

} // namespace

Record::Record(std::string folder, std::size_t limit) : m_folder(std::move(folder)), m_limit(limit)
{
}

void Record::add(Call const& call)
{
    std::string const line = lineOf(call);
    std::lock_guard const lock(m_mutex);
    if (m_process != ::getpid()) {
        openFile();
    }
    if (m_isFull) {
        return;
    }
    if (m_size + line.size() > m_limit) {
        m_isFull = true;
        say("the record ends here, at ZEL_KIV_RECORD_LIMIT=" + std::to_string(m_limit) + " bytes");
        return;
    }
    m_size += line.size();
    m_file->write(line);
}

void Record::openFile()
{
    m_process = ::getpid();
    m_file = std::make_unique<Sink>();
    m_file->open(m_folder + '/' + std::to_string(m_process) + ".jsonl");
    m_size = 0;
    m_isFull = false;
}

} // namespace kiv::diagnostics
