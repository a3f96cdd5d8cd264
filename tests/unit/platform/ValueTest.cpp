#include "values/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace std::string_literals;
using namespace zel::dataformats::data;
using zel::common::types::BufferDescriptor;
using zel::common::types::PtrMap;
using zel::common::types::PtrVector;

/// Writes down all it is shown, so that equal texts mean equal trees.
class Printer : public ConstVisitor {
public:
    void visitNull() override { text += "null"; }
    void visitBoolean(bool value) override { text += value ? "yes" : "no"; }
    void visitInteger(int value) override { text += std::to_string(value); }
    void visitFloat(double value) override { text += std::to_string(value); }
    void visitString(BufferDescriptor<char const> value) override
    {
        text += '"' + std::string(value.data(), value.size()) + '"';
    }
    void visitBlob(BufferDescriptor<char const> value) override
    {
        text += '<' + std::string(value.data(), value.size()) + '>';
    }
    void visitArray(PtrVector<Value> const& entries) override
    {
        text += '[';
        for (Value const* entry : entries) {
            visit(entry);
            text += ' ';
        }
        text += ']';
    }
    void visitObject(PtrMap<std::string, Value> const& entries) override
    {
        text += '{';
        for (auto const& [key, value] : entries) {
            text += key + ':';
            visit(static_cast<Value const*>(value));
            text += ' ';
        }
        text += '}';
    }

    std::string text;
};

std::string print(Value const* value)
{
    Printer printer;
    printer.visit(value);
    return printer.text;
}

std::unique_ptr<Value> makeTree()
{
    auto list = std::make_unique<Array>();
    list->pushNew(new Null);
    list->pushNew(nullptr);
    list->pushNew(new Blob{{"a\0b", 3}});
    list->pushNew(new Array);
    auto tree = std::make_unique<Object>();
    tree->setNew("text", new String{"long enough to need memory\0!"s});
    tree->setNew("list", list.release());
    tree->setNew("number", new Integer{-3});
    tree->setNew("fraction", new Float{0.5});
    tree->setNew("flag", new Boolean{true});
    tree->setNew("none", nullptr);
    tree->setNew("object", new Object);
    return tree;
}

std::string const printedTree = "{flag:yes fraction:0.500000 list:[null null <a\0b> [] ] none:null "
                                "number:-3 object:{} text:\"long enough to need memory\0!\" }"s;

TEST(Value, ShowsEachTypeToAVisitorAndIsClonedDeeply)
{
    std::unique_ptr<Value> tree = makeTree();
    EXPECT_EQ(print(tree.get()), printedTree);
    EXPECT_EQ(print(nullptr), "null");
    std::unique_ptr<Value> const copy{tree->clone()};
    tree.reset();
    EXPECT_EQ(print(copy.get()), printedTree);
}

TEST(Value, SaysItsType)
{
    auto const expectType = [](Value const& value, std::int32_t type, std::string const& name) {
        std::unique_ptr<Value> const copy{value.clone()};
        EXPECT_EQ(value.getType(), type) << name;
        EXPECT_EQ(value.typeName(), name);
        EXPECT_EQ(copy->getType(), type) << name;
    };
    expectType(Null(), 0, "Null");
    expectType(Boolean(false), 1, "Boolean");
    expectType(Integer(0), 2, "Integer");
    expectType(Float(0), 3, "Float");
    expectType(Blob(BufferDescriptor<char const>{}), 4, "Blob");
    expectType(String(""), 5, "String");
    expectType(Array(), 7, "Array");
    expectType(Object(), 8, "Object");
}

TEST(Array, KeepsItsEntriesInOrder)
{
    Array array;
    EXPECT_TRUE(array.get().empty());
    EXPECT_EQ(array.get().begin(), array.get().end());

    std::vector<Value*> pushed;
    for (int index = 0; index < 1000; ++index) {
        pushed.push_back(index % 10 == 0 ? nullptr : new Integer{index});
        array.pushNew(pushed.back());
    }
    PtrVector<Value> const& entries = array.get();
    EXPECT_TRUE(std::equal(entries.begin(), entries.end(), pushed.begin(), pushed.end()));
    EXPECT_EQ(entries.size(), pushed.size());
    EXPECT_EQ(entries[999], pushed[999]);
}

} // namespace
