#include "json/JsonWriter.h"

#include "json/Maps.h"
#include "testing/detail/JsonVisitor.h"
#include "text/Failure.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace kiv::json {

namespace {

/// The code of a character that a terminal would act on, if these bytes are one of those that JSON
/// lets stand; otherwise 0.
unsigned dangerousCode(std::string_view bytes)
{
    auto const byte = [&](std::size_t at) -> unsigned {
        return static_cast<unsigned char>(bytes[at]);
    };
    if (bytes == "\x7F") {
        return byte(0);
    }
    if (bytes.size() == 2) {
        return byte(1) >= 0x80U && byte(1) < 0xA0U ? byte(1) : 0;
    }
    unsigned const code = 0x2000U | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
    bool const turns = (code >= 0x202AU && code <= 0x202EU) || (code >= 0x2066U && code <= 0x2069U);
    return turns ? code : 0;
}

/// The output as RapidJSON wants it. Characters that JSON lets stand and a terminal would act on
/// are escaped: they stand in texts and keys alone.
class Stream {
public:
    using Ch = char;

    explicit Stream(Output& output) : m_output(output) {}

    void Put(char character)
    {
        if (m_held.empty() && lengthBehind(character) == 0) {
            m_output.put(character);
            return;
        }
        m_held += character;
        if (m_held.size() == lengthBehind(m_held.front())) {
            release();
        }
    }
    static void Flush() {}

    /// Writes what may have been the beginning of such a character.
    void release()
    {
        bool const isWhole = !m_held.empty() && m_held.size() == lengthBehind(m_held.front());
        unsigned const code = isWhole ? dangerousCode(m_held) : 0;
        if (code == 0) {
            m_output.write(m_held);
        } else {
            constexpr std::string_view digits = "0123456789abcdef";
            m_output.write("\\u");
            for (unsigned const shift : {12U, 8U, 4U, 0U}) {
                m_output.put(digits[(code >> shift) & 0xFU]);
            }
        }
        m_held.clear();
    }

private:
    /// How many bytes a character has that begins so; 0 if it is none of those that are escaped.
    static std::size_t lengthBehind(char first)
    {
        switch (first) {
        case '\x7F':
            return 1;
        case '\xC2':
            return 2;
        case '\xE2':
            return 3;
        default:
            return 0;
        }
    }

    Output& m_output;
    std::string m_held;
};

template <typename To>
using CompactTarget = rapidjson::Writer<To>;
template <typename To>
using IndentedTarget = rapidjson::PrettyWriter<To>;

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

    void document(data::Object const& object, WrittenLists const& lists) override
    {
        entry(object, lists);
        m_output.put('\n');
    }

    void startArray() override { m_target.StartArray(); }

    void entry(data::Value const* value) override
    {
        StrictVisitor<Target>(m_target).write(value);
        m_stream.release();
    }

    void entry(data::Object const& object, WrittenLists const& lists) override
    {
        StrictVisitor<Target> visitor(m_target);
        m_target.StartObject();
        eachOf(object.get(), [&](std::string_view key, data::Value const* value) {
            m_target.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
            auto const list = lists.find(std::string(key));
            if (list == lists.end()) {
                visitor.write(value);
            } else {
                writeList(visitor, list->second, static_cast<data::Array const&>(*value));
            }
        });
        m_target.EndObject();
        m_stream.release();
    }

    void endArray() override
    {
        m_target.EndArray();
        m_output.put('\n');
    }

private:
    void writeList(StrictVisitor<Target>& visitor, std::vector<std::string> const& written,
                   data::Array const& rest)
    {
        m_target.StartArray();
        for (std::string const& entries : written) {
            m_target.RawValue(entries.data(), entries.size(), rapidjson::kObjectType);
        }
        for (data::Value const* const entry : entriesOf(rest)) {
            visitor.write(entry);
        }
        m_target.EndArray();
    }

    Output& m_output;
    Stream m_stream;
    Target m_target;
};

template <template <typename> typename Target>
std::string entriesTextBy(data::Array const& array, std::size_t depth)
{
    rapidjson::StringBuffer text;
    Target<rapidjson::StringBuffer> target(text);
    for (std::size_t i = 0; i < depth; ++i) {
        target.StartArray();
    }
    text.Clear();
    StrictVisitor<decltype(target)> visitor(target);
    for (data::Value const* const entry : entriesOf(array)) {
        visitor.write(entry);
    }
    std::string_view entries(text.GetString(), text.GetSize());
    entries.remove_prefix(std::min(entries.find_first_not_of(" \n"), entries.size()));
    return std::string(entries);
}

} // namespace

std::string entriesText(data::Array const& array, Layout layout, std::size_t depth)
{
    return layout == Layout::Compact ? entriesTextBy<CompactTarget>(array, depth)
                                     : entriesTextBy<IndentedTarget>(array, depth);
}

std::unique_ptr<Writer> makeWriter(Output& output, Layout layout)
{
    if (layout == Layout::Compact) {
        return std::make_unique<WriterOn<CompactTarget<Stream>>>(output);
    }
    return std::make_unique<WriterOn<IndentedTarget<Stream>>>(output);
}

} // namespace kiv::json
