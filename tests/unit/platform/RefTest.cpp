#include "values/values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

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
    EXPECT_EQ(ref.asInteger(), integer) << text;
    EXPECT_EQ(ref.asBoolean(), flag) << text;
    EXPECT_TRUE(ref.asFloat() == number || std::isnan(number)) << text << ' ' << ref.asFloat();
}

TEST(Ref, ReadsIntegersAndTruthAsEveryType)
{
    Integer const number{-5};
    Integer const zero{0};
    Integer const least{intMin};
    Boolean const yes{true};
    Boolean const no{false};
    expectReads(&number, "-5", -5, true, -5);
    expectReads(&zero, "0", 0, false, 0);
    expectReads(&least, "-2147483648", intMin, true, intMin);
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
    for (Value const* value :
         std::initializer_list<Value const*>{nullptr, &null, &blob, &array, &object}) {
        expectReads(value, "", 0, false, 0);
    }
}

/// As the shortest text that reads back the same, and as integers within their range.
TEST(Ref, ReadsFloatsAsEveryType)
{
    struct {
        double number;
        char const* text;
        int integer;
    } const cases[] = {
        {0.0, "0", 0},
        {-0.0, "-0", 0},
        {0.1, "0.1", 0},
        {0.999999, "0.999999", 0},
        {-0.999999, "-0.999999", 0},
        {3, "3", 3},
        {-2.75, "-2.75", -2},
        {1.0 / 3, "0.3333333333333333", 0},
        {123456789.125, "123456789.125", 123456789},
        {5e-324, "5e-324", 0},
        {2147483647.9, "2147483647.9", intMax},
        {2147483648.0, "2147483648", intMax},
        {-2147483648.9, "-2147483648.9", intMin},
        {1e23, "1e+23", intMax},
        {-largest, "-1.7976931348623157e+308", intMin},
        {infinity, "inf", intMax},
        {-infinity, "-inf", intMin},
        {notANumber, "nan", 0},
        {-notANumber, "nan", 0},
    };
    for (auto const& each : cases) {
        Float const value{each.number};
        expectReads(&value, each.text, each.integer, each.number != 0, each.number);
        String const text{each.text};
        EXPECT_EQ(Ref{&text}.asFloat(), std::isfinite(each.number) ? each.number : 0) << each.text;
    }
}

TEST(Ref, ReadsTextsThatAreNumbers)
{
    std::string const longZero = "0." + std::string(400, '0') + "1";
    struct {
        std::string text;
        int integer;
        double number;
    } const cases[] = {
        {"0", 0, 0},
        {"42", 42, 42},
        {"-42", -42, -42},
        {"007", 7, 7},
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
        {longZero, 0, 0},
        {longZero + "e+50", 0, 0},
        {longZero + "e402", 10, 10},
        {std::string(400, '9'), intMax, largest},
    };
    for (auto const& each : cases) {
        String const value{each.text};
        expectReads(&value, each.text, each.integer, false, each.number);
    }
}

TEST(Ref, ReadsNothingFromTextsThatAreNotWhollyNumbers)
{
    using namespace std::string_literals;
    for (std::string const& text :
         {""s,         "-"s,   "."s,     "-."s,   "+1"s,    "--1"s,   " 1"s,  "1 "s,   "1\n"s,
          "1,5"s,      "1e"s,  "1.2.3"s, "0x10"s, "e1"s,    "1f"s,    "inf"s, "-inf"s, "nan"s,
          "infinity"s, "1\0"s, "True"s,  "TRUE"s, " true"s, "true "s, "yes"s, "true"s}) {
        String const value{text};
        expectReads(&value, text, 0, text == "true", 0);
    }
}

} // namespace
