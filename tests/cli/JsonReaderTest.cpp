#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "json/Maps.h"
#include "json/ValueBuilder.h"

#include "Printed.h"
#include "text/Failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

namespace kiv::json {
namespace {

/// Gives a text in chunks of `step` bytes, so that places are counted across the seams.
ByteSource textSource(std::string text, std::size_t step = 64UL * 1024)
{
    return [text = std::move(text), step, at = std::size_t{0}](std::span<char> buffer) mutable {
        std::size_t const count = std::min({buffer.size(), step, text.size() - at});
        std::copy_n(text.data() + at, count, buffer.data());
        at += count;
        return count;
    };
}

/// What a value looks like when it is written again.
std::string written(data::Value const* value)
{
    std::string text =
        printed([value](Output& output) { makeWriter(output, Layout::Compact)->document(value); });
    text.pop_back(); // the line break
    return text;
}

std::string rewritten(std::string const& text)
{
    return written(readDocument("f", textSource(text)).value.get());
}

std::string faultOf(std::string const& text)
{
    try {
        readDocument("f", textSource(text, 1));
    } catch (Failure const& failure) {
        return failure.where() + " " + failure.what();
    }
    return "none";
}

std::string placeOf(Position position)
{
    return std::to_string(position.line) + ":" + std::to_string(position.column);
}

TEST(JsonReader, valuesComeBackAsTheyWere)
{
    for (char const* text :
         {"null", "true", "[]", "{}", R"([null,false,{"a":null}])", R"({"a":{"b":[[],{}]}})",
          "2147483647", "-2147483648", "0", R"("")", R"("ä\"\\\u0001😀")",
          // doubles stay doubles and keep every bit
          "1.0", "-0.0", "0.1", "0.30000000000000004", "1e+300", "5e-324",
          "1.7976931348623157e+308", "9007199254740993.0"}) {
        std::string const expected =
            text == std::string("9007199254740993.0") ? "9007199254740992.0" : text;
        EXPECT_EQ(rewritten(text), expected);
    }
    EXPECT_EQ(rewritten("1e-400"), "0.0");
    EXPECT_EQ(rewritten("-0"), "0");
    EXPECT_EQ(rewritten(R"("\ud83d\ude00\u0000\/")"), R"("😀\u0000/")");
    EXPECT_EQ(rewritten(R"({"b":1,"a":{"x":1},"b":2,"a":3})"), R"({"a":3,"b":2})");
}

TEST(JsonReader, everyPlaceIsKnown)
{
    // Two bytes and four bytes count as one column each; chunks of one byte have seams everywhere.
    std::string const text =
        "\n {\"ä😀\" : [ 12,\r\n\ttrue ,[], null],\n  \"k\":\"\\\"}\\\\\", \"k\":-1.5}";
    Document const document = readDocument("f", textSource(text, 1));
    auto const& object = static_cast<data::Object const&>(*document.value);
    auto const members = document.places.keysOf(object);

    EXPECT_EQ(placeOf(document.position), "2:2");
    ASSERT_EQ(members.size(), 3U);
    EXPECT_EQ(members[0].key, "ä😀");
    EXPECT_EQ(placeOf(members[0].keyPosition), "2:3");
    EXPECT_EQ(placeOf(members[0].position), "2:10");
    EXPECT_EQ(placeOf(members[1].keyPosition), "4:3");
    EXPECT_EQ(placeOf(members[1].position), "4:7");
    EXPECT_EQ(placeOf(members[2].keyPosition), "4:16");
    EXPECT_EQ(placeOf(members[2].position), "4:20");
    EXPECT_EQ(document.places.find(object, "k"), &members[2]) << "the last one counts";
    EXPECT_EQ(document.places.find(object, "none"), nullptr);

    auto const* const array = static_cast<data::Value*>(object.get().find("ä😀")->second);
    std::array<char const*, 4> const entries{"2:12", "3:2", "3:8",
                                             "3:12"}; // a null, which is no value
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(placeOf(document.places.entry(*array, i)), entries.at(i));
    }
}

TEST(JsonReader, refusesWhatIsNoJsonAndSaysWhere)
{
    struct {
        std::string text;
        char const* fault;
    } const cases[] = {
        {"", "f:1:1 the file is empty; the least that JSON can be is []"},
        {" \n ", "f:2:2 the file is empty; the least that JSON can be is []"},
        {"[1,\n 2", "f:2:3 the file ends here, but the document does not"},
        {"[1] 2", "f:1:5 the document has ended before this; of a file with a document on "
                  "each line, kiv reads all with --lines"},
        {"[1,]", "f:1:3 no value follows this comma; take it out"},
        {"{\"a\":1 , }", "f:1:8 no value follows this comma; take it out"},
        {"[1 /* one */]", "f:1:4 a comment cannot stand in JSON; take it out"},
        {"]", "f:1:1 this ']' ends what nothing has begun"},
        {"[0,nul]", "f:1:4 this is no JSON value"},
        {"[01]", "f:1:3 missing a comma or ']' after an array element"},
        {"{\"a\" 1}", "f:1:6 missing a colon after a name of object member"},
        {"[\n\"abc", "f:2:1 the text that starts here has no closing quotation mark"},
        {"[\"a\nb\"]", "f:1:4 a line break, tab or other control character must be escaped in a "
                       "text, as in \\n, \\t or \\u001b"},
        {"[\"ä\\x\"]", "f:1:4 invalid escape character in string"},
        {"[\"\\ud83dx\"]", "f:1:3 the surrogate pair in string is invalid"},
        {"[\"\\ude00\"]", "f:1:2 this text has half of a surrogate pair in an escape, which is no "
                          "character"},
        {"[\"ab\xC3(\"]", "f:1:5 this text is not in UTF-8"},
        {"[\"ab\xED\xA0\x80\"]", "f:1:5 this text is not in UTF-8"},
        {"\xEF\xBB\xBF[]", "f:1:1 the file starts with a byte order mark, which is no part of "
                           "JSON; save it as UTF-8 without one"},
        {std::string("[]\0x", 4), "f:1:3 a zero byte cannot stand in JSON"},
        {std::string("[\"a\0\"]", 6), "f:1:4 a zero byte cannot stand in JSON"},
        {R"({"a\u0000b":1})", "f:1:2 this key holds a zero byte, which no key of a value can"},
        {R"([0,{"a b":[2147483648]}])",
         "f:1:12 the integer 2147483648 at [1][\"a b\"][0] does not fit into 32 bits (-2147483648 "
         "to 2147483647)"},
        {"[-99999999999999999999999999]",
         "f:1:2 the integer -99999999999999999999999999 at [0] does not fit into 32 bits "
         "(-2147483648 to 2147483647)"},
        {"12345678901", "f:1:1 the integer 12345678901 at the top does not fit into 32 bits "
                        "(-2147483648 to 2147483647)"},
        {"[10e308]", "f:1:2 the number 10e308 at [0] is too large for a double"},
        {"[1e309]", "f:1:2 the number 1e309 at [0] is too large for a double"},
    };
    for (auto const& each : cases) {
        EXPECT_EQ(faultOf(each.text), each.fault);
    }
}

/// The reader gives up at some of these by itself, which is no reason to rely on it.
TEST(ValueBuilder, RefusesBothHalvesOfASurrogatePair)
{
    PositionedStream const stream(textSource(""));
    std::string const file = "f";
    Listeners const none;
    Document document;
    ValueBuilder builder(file, stream, document, nullptr, none);
    for (char const* const half :
         {"\xED\xA0\x80", "\xED\xAF\xBF", "\xED\xB0\x80", "\xED\xBF\xBF"}) {
        EXPECT_THROW(builder.String(half, 3, true), Failure);
    }
    EXPECT_TRUE(builder.String("\xED\x9F\xBF\xEE\x80\x80", 6, true)) << "just beside them";
}

TEST(JsonReader, depthHasALimit)
{
    std::string const deepest = std::string(maxDepth, '[') + std::string(maxDepth, ']');
    EXPECT_EQ(rewritten(deepest), deepest);
    EXPECT_EQ(faultOf("[" + deepest + "]"), "f:1:1001 nested deeper than 1000 levels");
}

TEST(JsonReader, oneTextHasALimitAndManyHaveNone)
{
    auto const isCut = [](std::string text) {
        PositionedStream stream(textSource(std::move(text), 1000), 100'000);
        while (!stream.atEnd()) {
            stream.Take();
        }
        return stream.isCut();
    };
    std::string const tooLong(200'000, '7');
    EXPECT_TRUE(isCut("[\"" + tooLong + "\"]"));
    EXPECT_TRUE(isCut("{\"" + tooLong + "\": 1}"));
    EXPECT_TRUE(isCut("[" + tooLong + "]"));
    EXPECT_FALSE(isCut(std::string(200'000, ' ')));
    std::string many = "[";
    while (many.size() < tooLong.size()) {
        many += "\"short\", 77, ";
    }
    EXPECT_FALSE(isCut(many));
}

TEST(JsonReader, entriesComeBeforeTheFileIsRead)
{
    std::string const entry = R"({"id":"one"},)";
    std::size_t given = 0;
    ByteSource const source = [&](std::span<char> buffer) {
        std::size_t const count = given < 20 * buffer.size() ? buffer.size() : 0;
        for (std::size_t i = 0; i < count; ++i, ++given) {
            buffer[i] = given == 0 ? '[' : entry[(given - 1) % entry.size()];
        }
        return count;
    };
    std::size_t entries = 0;
    std::size_t mostAhead = 0;
    auto const count = [&](Entry const& each, Places const& places) {
        EXPECT_EQ(each.index, entries++);
        EXPECT_EQ(each.position.column, 2 + each.index * entry.size());
        EXPECT_EQ(places.keysOf(*each.value).size(), 1U);
        mostAhead = std::max(mostAhead, given - entries * entry.size());
    };
    EXPECT_THROW(readEntries("f", source, count), Failure) << "the array has no end";
    EXPECT_GT(entries, 80000U);
    EXPECT_LT(mostAhead, 200000U);
}

TEST(JsonReader, longArraysOfAnEntryComeInParts)
{
    constexpr std::size_t count = 30000;
    std::string list = "[";
    while (list.size() < count * 8) {
        list += R"("entry",)";
    }
    list.back() = ']';
    std::string const text = R"([{"short":[1],"taken":)" + list + R"(,"left":)" + list + "}]";
    std::size_t taken = 0;
    std::size_t parts = 0;
    Listeners listeners;
    listeners.onPart = [&](Part& part) {
        auto const& entries = static_cast<data::Array&>(*part.array).get();
        if (part.key != "taken") {
            return false;
        }
        ++parts;
        EXPECT_EQ(part.first, taken);
        EXPECT_LT(entries.size() * 8, 2 * partSize);
        EXPECT_EQ(part.places.entry(*part.array, entries.size() - 1).column,
                  text.find(list) + 2 + 8 * (taken + entries.size() - 1));
        taken += entries.size();
        return true;
    };
    auto const onEntry = [&](Entry const& entry, Places const& places) {
        EXPECT_EQ(entry.given, (GivenParts{{"taken", taken}}));
        auto const& object = static_cast<data::Object const&>(*entry.value);
        auto const sizeOf = [&](char const* key) {
            return entriesOf(static_cast<data::Array const&>(*valueAt(object, key))).size();
        };
        EXPECT_EQ(sizeOf("taken") + taken, count);
        EXPECT_EQ(sizeOf("left"), count);
        EXPECT_EQ(places.entry(*valueAt(object, "left"), 0).column, text.rfind(list) + 2);
    };
    readEntries("f", textSource(text), onEntry, listeners);
    EXPECT_EQ(parts, count * 8 / partSize);
}

TEST(JsonWriter, refusesWhatJsonCannotHold)
{
    for (double const value :
         {std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()}) {
        data::Float const number(value);
        EXPECT_THROW(written(&number), Failure);
    }
}

} // namespace
} // namespace kiv::json
