#include "json/JsonReader.h"

#include "json/ValueBuilder.h"
#include "text/Failure.h"

// The reader is asked for the text of a number, and yet gives up at one that is too large for a
// double. RapidJSON lets its user say what an error does: this one does nothing, and the text is
// told.
#define RAPIDJSON_PARSE_ERROR_NORETURN(code, offset)                                               \
    static_cast<void>((code) == kParseErrorNumberTooBig || (SetParseError(code, offset), true))

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <cctype>
#include <utility>

namespace kiv::json {

namespace {

using Fault = rapidjson::ParseErrorCode;

/// RapidJSON's own words, "Invalid value.", as part of a line.
std::string libraryWords(Fault fault)
{
    std::string words = rapidjson::GetParseError_En(fault);
    words.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(words.front())));
    if (words.back() == '.') {
        words.pop_back();
    }
    return words;
}

bool isControl(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20U;
}

/// Whether the reader stopped at a bracket behind a comma.
bool isTrailingComma(PositionedStream const& stream)
{
    return stream.last() == ',' && (stream.Peek() == ']' || stream.Peek() == '}');
}

/// Whether the reader stopped, outside a text, at what begins a comment elsewhere.
bool isComment(Fault fault, PositionedStream const& stream)
{
    return (stream.Peek() == '/' || stream.Peek() == '#') &&
           fault != rapidjson::kParseErrorStringEscapeInvalid &&
           fault != rapidjson::kParseErrorStringInvalidEncoding;
}

/// What is wrong at the place where the reader stopped, where more can be said than it knows.
std::string faultWords(Fault fault, PositionedStream const& stream)
{
    if (stream.isCut()) {
        return "the text or number that starts here is longer than 2 GiB; make it shorter";
    }
    if (!stream.atEnd() && stream.Peek() == '\0') {
        return "a zero byte cannot stand in JSON";
    }
    if (isTrailingComma(stream)) {
        return "no value follows this comma; take it out";
    }
    if (isComment(fault, stream)) {
        return "a comment cannot stand in JSON; take it out";
    }
    if (fault == rapidjson::kParseErrorDocumentEmpty && !stream.atEnd()) {
        return std::string("this '") + stream.Peek() + "' ends what nothing has begun";
    }
    if (fault == rapidjson::kParseErrorDocumentEmpty) {
        return "the file is empty; the least that JSON can be is []";
    }
    if (fault == rapidjson::kParseErrorStringMissQuotationMark) {
        return "the text that starts here has no closing quotation mark";
    }
    if (fault == rapidjson::kParseErrorStringEscapeInvalid && isControl(stream.Peek())) {
        return "a line break, tab or other control character must be escaped in a text, as in "
               "\\n, \\t or \\u001b";
    }
    if (fault == rapidjson::kParseErrorStringInvalidEncoding) {
        return "this text is not in UTF-8";
    }
    if (fault == rapidjson::kParseErrorDocumentRootNotSingular) {
        return "the document has ended before this; of a file with a document on each line, kiv reads "
               "all with --lines";
    }
    if (stream.atEnd()) {
        return "the file ends here, but the document does not";
    }
    if (fault == rapidjson::kParseErrorValueInvalid) {
        return "this is no JSON value";
    }
    return libraryWords(fault);
}

Position faultPosition(rapidjson::ParseResult const& result, PositionedStream const& stream)
{
    if (!stream.atEnd() && stream.Peek() == '\0') {
        return stream.here();
    }
    if (stream.isCut() || isTrailingComma(stream) ||
        result.Code() == rapidjson::kParseErrorStringMissQuotationMark ||
        (result.Code() == rapidjson::kParseErrorValueInvalid && stream.inWord())) {
        return stream.token();
    }
    return stream.positionOf(result.Offset());
}

void refuseOtherEncodings(std::string const& file, PositionedStream const& stream)
{
    if (stream.startsWith("\xEF\xBB\xBF")) {
        throw Failure(placeText(file, {}), "the file starts with a byte order mark, which is no "
                                           "part of JSON; save it as UTF-8 without one");
    }
    if (stream.startsWith("\xFF\xFE") || stream.startsWith("\xFE\xFF")) {
        throw Failure(placeText(file, {}), "the file is in UTF-16; save it as UTF-8");
    }
}

Document read(std::string const& file, ByteSource source, EntryHandler const* handler,
              Listeners const& listeners, Position start)
{
    constexpr unsigned flags = rapidjson::kParseIterativeFlag |
                               rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseNumbersAsStringsFlag;
    PositionedStream stream(std::move(source), PositionedStream::longestToken, start);
    refuseOtherEncodings(file, stream);
    Document document;
    ValueBuilder builder(file, stream, document, handler, listeners);
    rapidjson::Reader reader;
    rapidjson::ParseResult const result = reader.Parse<flags>(stream, builder);
    bool const stoppedAtZero = !result.IsError() && !stream.atEnd();
    if (result.IsError() || stoppedAtZero || stream.isCut()) {
        throw Failure(placeText(file, faultPosition(result, stream)),
                      faultWords(result.Code(), stream));
    }
    return document;
}

} // namespace

Document readEntries(std::string const& file, ByteSource source, EntryHandler const& handler,
                     Listeners const& listeners)
{
    return read(file, std::move(source), &handler, listeners, {});
}

Document readDocument(std::string const& file, ByteSource source, Position start,
                      Listeners const& listeners)
{
    return read(file, std::move(source), nullptr, listeners, start);
}

} // namespace kiv::json
