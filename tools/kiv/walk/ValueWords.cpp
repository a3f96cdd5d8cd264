#include "tools/kiv/walk/ValueWords.h"

namespace kiv {

namespace {

class WordsVisitor : public data::ConstVisitor {
public:
    void visitNull() override { m_words = "null"; }
    void visitBoolean(bool /*value*/) override { m_words = "a boolean"; }
    void visitInteger(int /*value*/) override { m_words = "a number"; }
    void visitFloat(double /*value*/) override { m_words = "a number"; }
    void visitString(types::BufferDescriptor<char const> /*text*/) override { m_words = "text"; }
    void visitBlob(types::BufferDescriptor<char const> /*bytes*/) override { m_words = "a blob"; }
    void visitArray(types::PtrVector<data::Value> const& /*entries*/) override
    {
        m_words = "an array";
    }
    void visitObject(types::PtrMap<std::string, data::Value> const& /*entries*/) override
    {
        m_words = "an object";
    }

    [[nodiscard]] std::string_view words() const { return m_words; }

private:
    std::string_view m_words;
};

} // namespace

std::string_view wordsFor(data::Value const* value)
{
    if (value == nullptr) {
        return "null";
    }
    WordsVisitor visitor;
    visitor.visit(value);
    return visitor.words();
}

} // namespace kiv
