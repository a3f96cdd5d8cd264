#pragma once

#include "json/JsonReader.h"
#include "text/Path.h"

#include <rapidjson/rapidjson.h>

#include <string>
#include <string_view>
#include <vector>

namespace kiv::json {

/// Builds values from the events of RapidJSON's reader, which calls the operations below by these
/// names. A value that ends goes straight into what holds it; only what is still open is kept here.
/// Without an entry handler the value at the top stays in `document`.
class ValueBuilder {
public:
    /// All must outlive the builder; `handler` may be null and `onWideInteger` empty.
    ValueBuilder(std::string const& file, PositionedStream const& stream, Document& document,
                 EntryHandler const* handler, WideIntegerHandler const& onWideInteger);

    bool Null() { return add(nullptr); }
    bool Bool(bool value);
    bool RawNumber(char const* text, rapidjson::SizeType length, bool copy);
    bool String(char const* text, rapidjson::SizeType length, bool copy);
    bool Key(char const* text, rapidjson::SizeType length, bool copy);
    bool StartObject() { return open(std::make_unique<data::Object>(), true); }
    bool StartArray() { return open(std::make_unique<data::Array>(), false); }
    bool EndObject(rapidjson::SizeType /*members*/) { return close(); }
    bool EndArray(rapidjson::SizeType /*entries*/) { return close(); }

    // The reader names these too, but is told to give the text of numbers.
    static bool Int(int) { return false; }
    static bool Uint(unsigned) { return false; }
    static bool Int64(std::int64_t) { return false; }
    static bool Uint64(std::uint64_t) { return false; }
    static bool Double(double) { return false; }

private:
    /// An array or object that has not ended yet.
    struct Open {
        std::unique_ptr<data::Value> holder;
        bool isObject;
        Position position;
        std::string key;          ///< of an object: the key that waits for its value
        Position keyPosition;     ///< of an object: where that key stands
        std::size_t children = 0; ///< how many values were added
    };

    bool open(std::unique_ptr<data::Value> holder, bool isObject);
    bool close();
    /// Adds a value that is one token.
    bool add(std::unique_ptr<data::Value> value);
    bool addInteger(std::string const& digits);
    bool addFloat(std::string const& number);
    bool place(std::unique_ptr<data::Value> value, Position position);
    void placeAtTop(std::unique_ptr<data::Value> value, Position position);
    void placeBelow(Open& parent, std::unique_ptr<data::Value> value, Position position);
    [[nodiscard]] bool givesEntries() const;
    void checkText(std::string_view text) const;
    [[noreturn]] void refuse(Position position, std::string const& what) const;
    /// The path of the value that comes next.
    [[nodiscard]] std::string path() const;

    std::string const& m_file;
    PositionedStream const& m_stream;
    Document& m_document;
    EntryHandler const* m_handler;
    WideIntegerHandler const& m_onWideInteger;
    std::vector<Open> m_open;
};

} // namespace kiv::json
