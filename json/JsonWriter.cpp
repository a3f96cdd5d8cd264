#include "json/JsonWriter.h"

#include "text/Failure.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

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

/// Passes a value on to one of RapidJSON's writers.
template <typename Target>
class ValueVisitor : public data::ConstVisitor {
public:
    explicit ValueVisitor(Target& target) : m_target(target) {}

    void visitNull() override { m_target.Null(); }
    void visitBoolean(bool value) override { m_target.Bool(value); }
    void visitInteger(int value) override { m_target.Int(value); }

    void visitFloat(double value) override
    {
        if (!std::isfinite(value)) {
            throw Failure("a number that is not finite cannot be written as JSON");
        }
        std::array<char, 32> buffer{};
        auto const result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
        std::string text(buffer.data(), result.ptr);
        if (text.find_first_of(".e") == std::string::npos) {
            text.append(".0"); // or it would read back as an integer
        }
        m_target.RawValue(text.data(), text.size(), rapidjson::kNumberType);
    }

    void visitString(types::BufferDescriptor<char const> text) override
    {
        m_target.String(text.data() == nullptr ? "" : text.data(),
                        static_cast<rapidjson::SizeType>(text.size()));
    }

    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override
    {
        throw Failure("a blob cannot be written as JSON");
    }

    void visitArray(types::PtrVector<data::Value> const& entries) override
    {
        m_target.StartArray();
        for (data::Value const* entry : entries) {
            visitPossiblyNull(entry);
        }
        m_target.EndArray();
    }

    void visitObject(types::PtrMap<std::string, data::Value> const& entries) override
    {
        m_target.StartObject();
        for (auto const& [key, value] : entries) {
            m_target.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
            visitPossiblyNull(static_cast<data::Value const*>(value));
        }
        m_target.EndObject();
    }

    /// A null entry is JSON's null, whatever `visit` makes of it.
    void visitPossiblyNull(data::Value const* value)
    {
        if (value == nullptr) {
            visitNull();
        } else {
            visit(value);
        }
    }

private:
    Target& m_target;
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

    void entry(data::Value const* value) override
    {
        ValueVisitor<Target>(m_target).visitPossiblyNull(value);
    }

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
