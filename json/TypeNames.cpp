#include "json/TypeNames.h"

namespace kiv {

namespace {

class TypeNameVisitor : public data::ConstVisitor {
public:
    void visitNull() override { m_name = "null"; }
    void visitBoolean(bool /*value*/) override { m_name = "a boolean"; }
    void visitInteger(int /*value*/) override { m_name = "a number"; }
    void visitFloat(double /*value*/) override { m_name = "a number"; }
    void visitString(types::BufferDescriptor<char const> /*text*/) override { m_name = "text"; }
    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override { m_name = "a blob"; }
    void visitArray(types::PtrVector<data::Value> const& /*entries*/) override
    {
        m_name = "an array";
    }
    void visitObject(types::PtrMap<std::string, data::Value> const& /*entries*/) override
    {
        m_name = "an object";
    }

    [[nodiscard]] std::string_view name() const { return m_name; }

private:
    std::string_view m_name;
};

} // namespace

std::string_view typeName(data::Value const* value)
{
    if (value == nullptr) {
        return "null";
    }
    TypeNameVisitor visitor;
    visitor.visit(value);
    return visitor.name();
}

} // namespace kiv
