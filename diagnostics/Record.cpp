#include "diagnostics/Record.h"

#include "diagnostics/Clock.h"
#include "json/Maps.h"
#include "testing/detail/JsonVisitor.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <cmath>
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

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

/// What JSON has no words for becomes null.
template <typename Target>
class Visitor : public zel::kiv::testing::detail::JsonVisitor<Target> {
    using Base = zel::kiv::testing::detail::JsonVisitor<Target>;

public:
    using Base::Base;

    void visitFloat(double value) override
    {
        std::isfinite(value) ? Base::visitFloat(value) : this->visitNull();
    }

    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override { this->visitNull(); }
};

/// The value in JSON, or nothing but null if the platform's objects cannot be walked.
template <typename Target>
std::string jsonOf(data::Value const* value)
{
    if constexpr (mapsAreWalkable) {
        rapidjson::StringBuffer buffer;
        Target target(buffer);
        Visitor<Target>(target).write(value);
        return {buffer.GetString(), buffer.GetSize()};
    } else {
        return "null";
    }
}

std::string lineOf(Call const& call)
{
    std::string line = R"({"time":")" + std::string(TimeText().view()) + R"(","direction":")";
    line.append(call.isIn ? "in" : "out").append(R"(","resource":")").append(nameOf(call.what));
    line.append(R"(","of":")").append(call.isResource ? "resource" : "element");
    line.append(R"(","form":")").append(formOf(call)).append(R"(","value":)");
    line.append(jsonOf<Writer>(call.value)).append("}\n");
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
