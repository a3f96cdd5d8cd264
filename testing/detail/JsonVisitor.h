#pragma once

#include "testing/detail/walk.h"
#include "values/values.h"

#include <rapidjson/rapidjson.h>

#include <array>
#include <charconv>
#include <string>

namespace zel::kiv::testing::detail {

/// Passes a value on to one of RapidJSON's writers. Keys come in the order of the object, numbers
/// in the shortest form that reads back as the same number of the same type. What JSON has no words
/// for is written all the same, so that it can be seen. Uses the stack in proportion to the depth.
template <typename Target>
class JsonVisitor : public dataformats::data::ConstVisitor {
public:
    explicit JsonVisitor(Target& target) : m_target(target) {}

    /// A null pointer is JSON's null, whatever `visit` makes of it.
    void write(dataformats::data::Value const* value)
    {
        dataformats::data::Value const* const outer = m_value;
        m_value = value;
        if (value == nullptr) {
            visitNull();
        } else {
            visit(value);
        }
        m_value = outer;
    }

    void visitNull() override { m_target.Null(); }
    void visitBoolean(bool value) override { m_target.Bool(value); }
    void visitInteger(int value) override { m_target.Int(value); }

    void visitFloat(double value) override
    {
        std::array<char, 32> buffer{};
        auto const result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
        std::string text(buffer.data(), result.ptr);
        if (text.find_first_of(".ein") == std::string::npos) {
            text.append(".0"); // or it would read back as an integer
        }
        m_target.RawValue(text.data(), text.size(), rapidjson::kNumberType);
    }

    void visitString(zel::common::types::BufferDescriptor<char const> /*text*/) override
    {
        std::string const text = dataformats::data::Ref(m_value).asString();
        m_target.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
    }

    void visitBlob(zel::common::types::BufferDescriptor<char const> /*bytes*/) override
    {
        m_target.RawValue("(a blob)", 8, rapidjson::kStringType);
    }

    void visitArray(zel::common::types::PtrVector<dataformats::data::Value> const& entries) override
    {
        m_target.StartArray();
        for (dataformats::data::Value const* entry : entries) {
            write(entry);
        }
        m_target.EndArray();
    }

    void visitObject(
        zel::common::types::PtrMap<std::string, dataformats::data::Value> const& entries) override
    {
        m_target.StartObject();
        writeFields(entries);
        m_target.EndObject();
    }

private:
    /// For any map, so that nothing is said of one that cannot be walked unless it is written.
    template <typename Map>
    void writeFields(Map const& map)
    {
        for (auto const& entry : walkable(map)) {
            m_target.Key(entry.first.data(), static_cast<rapidjson::SizeType>(entry.first.size()));
            write(static_cast<dataformats::data::Value const*>(entry.second));
        }
    }

    Target& m_target;
    dataformats::data::Value const* m_value = nullptr; ///< the one that is visited
};

} // namespace zel::kiv::testing::detail
