#include "Allocations.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

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
    tree->setNew("a key that is long enough for that", new Integer{-3});
    tree->setNew("Fraction", new Float{0.5});
    tree->setNew("flag", new Integer{1});
    tree->setNew("flag", new Boolean{true}); // takes the place of the first
    tree->setNew("none", nullptr);
    tree->setNew("object", new Object);
    return tree;
}

std::string const printedTree =
    "{Fraction:0.500000 a key that is long enough for that:-3 flag:yes list:[null null <a\0b> [] "
    "] none:null object:{} text:\"long enough to need memory\0!\" }"s;

TEST(Value, ShowsItsTypeAndIsClonedAndFreedWhole)
{
    std::size_t const before = allocations::alive();
    {
        std::unique_ptr<Value> tree = makeTree();
        EXPECT_EQ(print(tree.get()), printedTree);
        EXPECT_EQ(print(nullptr), "null");
        std::unique_ptr<Value> const copy{tree->clone()};
        tree.reset();
        EXPECT_EQ(print(copy.get()), printedTree);
    }
    EXPECT_EQ(allocations::alive(), before);

    struct {
        std::unique_ptr<Value> value;
        std::int32_t type;
        std::string name;
    } const types[] = {
        {std::make_unique<Null>(), 0, "Null"},
        {std::make_unique<Boolean>(false), 1, "Boolean"},
        {std::make_unique<Integer>(0), 2, "Integer"},
        {std::make_unique<Float>(0), 3, "Float"},
        {std::make_unique<Blob>(BufferDescriptor<char const>{}), 4, "Blob"},
        {std::make_unique<String>(""), 5, "String"},
        {std::make_unique<Array>(), 7, "Array"},
        {std::make_unique<Object>(), 8, "Object"},
    };
    for (auto const& [value, type, name] : types) {
        EXPECT_EQ(value->getType(), type) << name;
        EXPECT_EQ(value->typeName(), name);
    }
}

TEST(Containers, GiveWhatTheyHoldInOrder)
{
    Object object;
    auto* const replacing = new Integer{2};
    for (char const* const key : {"b", "a", "", "B", "ab"}) {
        object.setNew(key, nullptr);
    }
    object.setNew("a", new Integer{1});
    std::size_t const alive = allocations::alive();
    object.setNew("a", replacing);
    EXPECT_EQ(allocations::alive(), alive - 1);
    EXPECT_EQ(print(&object), "{:null B:null a:2 ab:null b:null }");
    ASSERT_NE(object.get().find("a"), object.get().end());
    EXPECT_EQ(object.get().find("a")->second, replacing);
    ASSERT_NE(object.get().find("b"), object.get().end());
    EXPECT_EQ(object.get().find("b")->second, nullptr);
    EXPECT_EQ(object.get().find("c"), object.get().end());

    Array array;
    EXPECT_EQ(array.get().begin(), array.get().end());
    Value* const pushed[] = {new Integer{7}, nullptr, new Integer{8}};
    for (Value* const each : pushed) {
        array.pushNew(each);
    }
    EXPECT_TRUE(std::equal(array.get().begin(), array.get().end(), std::begin(pushed)));
}

TEST(Containers, OwnWhatTheyAreGivenAlsoWhenMemoryRunsOut)
{
    std::unique_ptr<Value> const tree = makeTree();
    std::size_t const alive = allocations::alive();
    auto const nothingIsLeft = [&] { EXPECT_EQ(allocations::alive(), alive); };
    EXPECT_GT(allocations::failEach([] { makeTree(); }, nothingIsLeft), 20U);
    EXPECT_GT(allocations::failEach([&] { std::unique_ptr<Value>{tree->clone()}; }, nothingIsLeft),
              20U);
}

} // namespace
