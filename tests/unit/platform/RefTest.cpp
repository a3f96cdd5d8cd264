#include "values/values.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace {

using namespace zel::dataformats::data;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();
constexpr int intMax = std::numeric_limits<int>::max();
constexpr int intMin = std::numeric_limits<int>::min();

struct Case {
    Value* value; ///< owned
    std::string text;
    int integer;
    bool flag;
    double number;
};

TEST(Ref, ConvertsWhereThatIsNaturalAndElseGivesZero)
{
    auto* const array = new Array;
    array->pushNew(new Integer{7});
    auto* const object = new Object;
    object->setNew("id", new Integer{7});
    for (Case const& each : {
             Case{new Integer{-5}, "-5", -5, true, -5},
             {new Integer{intMin}, "-2147483648", intMin, true, intMin},
             {new Integer{0}, "0", 0, false, 0},
             {new Boolean{true}, "true", 1, true, 1},
             {new Boolean{false}, "false", 0, false, 0},
             {new Float{1.0 / 3}, "0.3333333333333333", 0, true, 1.0 / 3},
             {new Float{-2.75}, "-2.75", -2, true, -2.75},
             {new Float{2147483648.0}, "2147483648", intMax, true, 2147483648.0},
             {new Float{-infinity}, "-inf", intMin, true, -infinity},
             {new Float{0.0}, "0", 0, false, 0},
             {new String{"-12.9"}, "-12.9", -12, false, -12.9},
             {new String{"25E-1"}, "25E-1", 2, false, 2.5},
             {new String{"2147483648"}, "2147483648", intMax, false, 2147483648.0},
             {new String{"-1e309"}, "-1e309", intMin, false, -largest},
             {new String{"true"}, "true", 0, true, 0},
             {new String{"True"}, "True", 0, false, 0},
             {new String{""}, "", 0, false, 0},
             {new String{" 1"}, " 1", 0, false, 0},
             {new String{"1 "}, "1 ", 0, false, 0},
             {new String{"1,5"}, "1,5", 0, false, 0},
             {new String{"0x10"}, "0x10", 0, false, 0},
             {new String{"inf"}, "inf", 0, false, 0},
             {nullptr, "", 0, false, 0},
             {new Null, "", 0, false, 0},
             {new Blob{{"7", 1}}, "", 0, false, 0},
             {array, "", 0, false, 0},
             {object, "", 0, false, 0},
         }) {
        std::unique_ptr<Value> const owned{each.value};
        Ref const ref{each.value};
        EXPECT_EQ(ref.asString(), each.text);
        EXPECT_EQ(ref.asInteger(), each.integer) << each.text;
        EXPECT_EQ(ref.asBoolean(), each.flag) << each.text;
        EXPECT_EQ(ref.asFloat(), each.number) << each.text;
    }
    Float const notANumber{std::numeric_limits<double>::quiet_NaN()};
    EXPECT_EQ(Ref{&notANumber}.asInteger(), 0);
}

} // namespace
