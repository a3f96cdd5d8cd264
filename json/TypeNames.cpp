#include "json/TypeNames.h"

#include <array>
#include <cstddef>

namespace kiv {

namespace {

class TypeVisitor final : public data::ConstVisitor {
public:
    void visitNull() override { m_type = Type::Null; }
    void visitBoolean(bool /*value*/) override { m_type = Type::Boolean; }
    void visitInteger(int /*value*/) override { m_type = Type::Integer; }
    void visitFloat(double /*value*/) override { m_type = Type::Float; }
    void visitString(types::BufferDescriptor<char const> /*text*/) override { m_type = Type::Text; }
    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override { m_type = Type::Blob; }
    void visitArray(types::PtrVector<data::Value> const& /*entries*/) override
    {
        m_type = Type::Array;
    }
    void visitObject(types::PtrMap<std::string, data::Value> const& /*map*/) override
    {
        m_type = Type::Object;
    }

    [[nodiscard]] Type type() const { return m_type; }

private:
    Type m_type = Type::Null;
};

/// By type, in the order of the enumeration.
constexpr std::array<std::string_view, 8> names{"null", "a boolean", "a number", "a number",
                                                "text", "a blob",    "an array", "an object"};

} // namespace

Type typeOf(data::Value const* value)
{
    if (value == nullptr) {
        return Type::Null;
    }
    TypeVisitor visitor;
    visitor.visit(value);
    return visitor.type();
}

std::string_view typeName(data::Value const* value)
{
    return names[static_cast<std::size_t>(typeOf(value))];
}

} // namespace kiv
