#include "json/JsonWriter.h"

#include "testing/detail/JsonVisitor.h"
#include "text/Failure.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <cmath>

namespace kiv::json {

namespace {

/// The output as RapidJSON wants it.
class Stream {
public:
    using Ch = char;

    explicit Stream(Output& output) : m_output(output) {}

    void Put(char character) { m_output.put(character); }
    static void Flush() {}

private:
    Output& m_output;
};

/// Refuses what is no JSON.
template <typename Target>
class StrictVisitor : public zel::kiv::testing::detail::JsonVisitor<Target> {
    using Base = zel::kiv::testing::detail::JsonVisitor<Target>;

public:
    using Base::Base;

    void visitFloat(double value) override
    {
        if (!std::isfinite(value)) {
            throw Failure("a number that is not finite cannot be written as JSON");
        }
        Base::visitFloat(value);
    }

    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override
    {
        throw Failure("a blob cannot be written as JSON");
    }
};

template <typename Target>
class WriterOn : public Writer {
public:
    explicit WriterOn(Output& output) : m_output(output), m_stream(output), m_target(m_stream) {}

    void document(data::Value const* value) override
    {
        entry(value);
        m_output.put('\n');
    }

    void startArray() override { m_target.StartArray(); }

    void entry(data::Value const* value) override { StrictVisitor<Target>(m_target).write(value); }

    void endArray() override
    {
        m_target.EndArray();
        m_output.put('\n');
    }

private:
    Output& m_output;
    Stream m_stream;
    Target m_target;
};

} // namespace

std::unique_ptr<Writer> makeWriter(Output& output, Layout layout)
{
    if (layout == Layout::Compact) {
        return std::make_unique<WriterOn<rapidjson::Writer<Stream>>>(output);
    }
    return std::make_unique<WriterOn<rapidjson::PrettyWriter<Stream>>>(output);
}

} // namespace kiv::json
