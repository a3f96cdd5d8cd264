#include "Allocations.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using namespace std::string_literals;
using namespace zel::dataformats::data;

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

TEST(Value, OwnsWhatItIsGivenAlsoWhenMemoryRunsOut)
{
    std::unique_ptr<Value> const tree = makeTree();
    std::size_t const alive = allocations::alive();
    auto const nothingIsLeft = [&] { EXPECT_EQ(allocations::alive(), alive); };
    EXPECT_GT(allocations::failEach([] { makeTree(); }, nothingIsLeft), 20U);
    EXPECT_GT(allocations::failEach([&] { std::unique_ptr<Value>{tree->clone()}; }, nothingIsLeft),
              20U);
}

} // namespace
