#include "values/values.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

namespace {

using namespace zel::dataformats::data;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();
constexpr int intMax = std::numeric_limits<int>::max();
constexpr int intMin = std::numeric_limits<int>::min();

void expectReads(Value const* value, std::string const& text, int integer, bool flag, double number)
{
    Ref const ref{value};
    EXPECT_EQ(ref.asString(), text);
    EXPECT_EQ(ref.asInteger(), integer);
    EXPECT_EQ(ref.asBoolean(), flag);
    EXPECT_EQ(ref.asFloat(), number);
}

TEST(Ref, ReadsEveryTypeAsEveryOther)
{
    String const text{"some text"};
    String const truth{"true"};
    Integer const number{-5};
    Integer const zero{0};
    Float const fraction{-2.75};
    Boolean const yes{true};
    Boolean const no{false};

    expectReads(&text, "some text", 0, false, 0);
    expectReads(&truth, "true", 0, true, 0);
    expectReads(&number, "-5", -5, true, -5);
    expectReads(&zero, "0", 0, false, 0);
    expectReads(&fraction, "-2.75", -2, true, -2.75);
    expectReads(&yes, "true", 1, true, 1);
    expectReads(&no, "false", 0, false, 0);
}

TEST(Ref, GivesZeroWhereNoConversionIsNatural)
{
    Null const null;
    Blob const blob{{"true", 4}};
    Array array;
    array.pushNew(new Integer{7});
    Object object;
    object.setNew("id", new Integer{7});

    for (Value const* value : {static_cast<Value const*>(nullptr), static_cast<Value const*>(&null),
                               static_cast<Value const*>(&blob), static_cast<Value const*>(&array),
                               static_cast<Value const*>(&object)}) {
        expectReads(value, "", 0, false, 0);
    }
}

TEST(Ref, HoldsFloatsWithinTheRangeOfIntegers)
{
    auto const read = [](double number) {
        Float const value{number};
        return Ref{&value}.asInteger();
    };
    EXPECT_EQ(read(2147483647.0), intMax);
    EXPECT_EQ(read(2147483647.9), intMax);
    EXPECT_EQ(read(2147483648.0), intMax);
    EXPECT_EQ(read(-2147483648.9), intMin);
    EXPECT_EQ(read(-1e300), intMin);
    EXPECT_EQ(read(infinity), intMax);
    EXPECT_EQ(read(-infinity), intMin);
    EXPECT_EQ(read(notANumber), 0);
    EXPECT_EQ(read(0.999999), 0);
    EXPECT_EQ(read(-0.999999), 0);
}

TEST(Ref, PrintsTheShortestTextThatReadsBackTheSame)
{
    auto const print = [](double number) {
        Float const value{number};
        return Ref{&value}.asString();
    };
    for (double const number :
         {0.1, 1.0 / 3, 1e22, 1e23, 5e-324, largest, -largest, 123456789.125}) {
        String const text{print(number)};
        EXPECT_EQ(Ref{&text}.asFloat(), number) << text.get();
    }
    EXPECT_EQ(print(0.1), "0.1");
    EXPECT_EQ(print(3), "3");
    EXPECT_EQ(print(-0.0), "-0");
    EXPECT_EQ(print(infinity), "inf");
    EXPECT_EQ(print(-infinity), "-inf");
    EXPECT_EQ(print(notANumber), "nan");
    EXPECT_EQ(print(-notANumber), "nan");

    Integer const least{intMin};
    EXPECT_EQ(Ref{&least}.asString(), "-2147483648");
}

TEST(Ref, IsTrueForEveryNumberButZero)
{
    auto const read = [](double number) {
        Float const value{number};
        return Ref{&value}.asBoolean();
    };
    EXPECT_TRUE(read(0.25));
    EXPECT_TRUE(read(5e-324));
    EXPECT_TRUE(read(notANumber));
    EXPECT_FALSE(read(0.0));
    EXPECT_FALSE(read(-0.0));

    for (char const* text : {"True", "TRUE", " true", "true ", "1", "yes", ""}) {
        String const value{text};
        EXPECT_FALSE(Ref{&value}.asBoolean()) << text;
    }
}

struct Reading {
    char const* text;
    int integer;
    double number;
};

TEST(Ref, ReadsTextsThatAreNumbers)
{
    std::string const longZero = "0." + std::string(400, '0') + "1";
    std::string const longZeroScaled = longZero + "e+50";
    std::string const longDigits(400, '9');
    std::string const longFraction = "0." + std::string(400, '0') + "1e402";
    for (Reading const reading : {
             Reading{"0", 0, 0},
             {"42", 42, 42},
             {"-42", -42, -42},
             {"007", 7, 7},
             {"12.5", 12, 12.5},
             {"-12.9", -12, -12.9},
             {".5", 0, 0.5},
             {"5.", 5, 5},
             {"1e3", 1000, 1000},
             {"25E-1", 2, 2.5},
             {"2147483647", intMax, 2147483647},
             {"2147483648", intMax, 2147483648},
             {"-2147483649", intMin, -2147483649.0},
             {"1e308", intMax, 1e308},
             {"1e309", intMax, largest},
             {"-1e309", intMin, -largest},
             {"1e99999999999999999999", intMax, largest},
             {"0.001e+400", intMax, largest},
             {"1e-400", 0, 0},
             {"123456e-99999999999999999999", 0, 0},
             {"0e99999999999999999999", 0, 0},
             {longZero.c_str(), 0, 0},
             {longZeroScaled.c_str(), 0, 0},
             {longDigits.c_str(), intMax, largest},
             {longFraction.c_str(), 10, 10},
         }) {
        String const value{reading.text};
        EXPECT_EQ(Ref{&value}.asInteger(), reading.integer) << reading.text;
        EXPECT_EQ(Ref{&value}.asFloat(), reading.number) << reading.text;
    }
}

TEST(Ref, ReadsNothingFromTextsThatAreNotWhollyNumbers)
{
    using namespace std::string_view_literals;
    for (std::string_view const text :
         {""sv,   "-"sv,   "."sv,    "-."sv,  "+1"sv,       "--1"sv,  " 1"sv,
          "1 "sv, "1\n"sv, "1,5"sv,  "1e"sv,  "1.2.3"sv,    "0x10"sv, "e1"sv,
          "1f"sv, "inf"sv, "-inf"sv, "nan"sv, "infinity"sv, "1\0"sv}) {
        String const value{std::string{text}};
        EXPECT_EQ(Ref{&value}.asInteger(), 0) << text;
        EXPECT_EQ(Ref{&value}.asFloat(), 0) << text;
    }
}

} // namespace
