#include "json/ValueBuilder.h"

#include "text/Failure.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace kiv::json {

namespace {

/// Whether the text holds half of a surrogate pair, which the reader lets through when it is
/// written as an escape. In UTF-8 that is 0xED and a byte from 0xA0 on, and nothing else is.
bool hasLoneSurrogate(std::string_view text)
{
    std::size_t at = text.find('\xED');
    while (at != std::string_view::npos && at + 1 < text.size()) {
        if (static_cast<unsigned char>(text[at + 1]) >= 0xA0U) {
            return true;
        }
        at = text.find('\xED', at + 1);
    }
    return false;
}

} // namespace

ValueBuilder::ValueBuilder(std::string const& file, PositionedStream const& stream,
                           Document& document, EntryHandler const* handler,
                           WideIntegerHandler const& onWideInteger)
    : m_file(file), m_stream(stream), m_document(document), m_handler(handler),
      m_onWideInteger(onWideInteger)
{
}

bool ValueBuilder::Bool(bool value)
{
    return add(std::make_unique<data::Boolean>(value));
}

bool ValueBuilder::RawNumber(char const* text, rapidjson::SizeType length, bool /*copy*/)
{
    std::string const number(text, length);
    bool const isInteger = number.find_first_of(".eE") == std::string::npos;
    return isInteger ? addInteger(number) : addFloat(number);
}

bool ValueBuilder::addInteger(std::string const& digits)
{
    int value = 0;
    auto const result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc()) {
        return add(std::make_unique<data::Integer>(value));
    }
    if (!m_onWideInteger) {
        refuse(m_stream.token(), "the integer " + digits + " at " + path() +
                                     " does not fit into 32 bits (-2147483648 to 2147483647)");
    }
    m_onWideInteger(m_stream.token(), path(), digits);
    return add(nullptr);
}

bool ValueBuilder::addFloat(std::string const& number)
{
    double const value = std::strtod(number.c_str(), nullptr);
    if (!std::isfinite(value)) {
        refuse(m_stream.token(),
               "the number " + number + " at " + path() + " is too large for a double");
    }
    return add(std::make_unique<data::Float>(value));
}

bool ValueBuilder::String(char const* text, rapidjson::SizeType length, bool /*copy*/)
{
    checkText({text, length});
    return add(std::make_unique<data::String>(std::string(text, length)));
}

bool ValueBuilder::Key(char const* text, rapidjson::SizeType length, bool /*copy*/)
{
    std::string_view const key(text, length);
    checkText(key);
    if (key.find('\0') != std::string_view::npos) {
        refuse(m_stream.token(), "this key holds a zero byte, which no key of a value can");
    }
    m_open.back().key = key;
    m_open.back().keyPosition = m_stream.token();
    return true;
}

bool ValueBuilder::open(std::unique_ptr<data::Value> holder, bool isObject)
{
    if (m_open.size() == maxDepth) {
        refuse(m_stream.here(), "nested deeper than " + std::to_string(maxDepth) + " levels");
    }
    m_document.places.start(holder.get());
    m_open.push_back({std::move(holder), isObject, m_stream.here(), {}, {}});
    return true;
}

bool ValueBuilder::close()
{
    std::unique_ptr<data::Value> value = std::move(m_open.back().holder);
    Position const position = m_open.back().position;
    m_open.pop_back();
    return place(std::move(value), position);
}

bool ValueBuilder::add(std::unique_ptr<data::Value> value)
{
    return place(std::move(value), m_stream.token());
}

bool ValueBuilder::place(std::unique_ptr<data::Value> value, Position position)
{
    if (m_open.empty()) {
        placeAtTop(std::move(value), position);
        return true;
    }
    Open& parent = m_open.back();
    std::size_t const index = parent.children++;
    if (givesEntries()) {
        (*m_handler)({std::move(value), position, index}, m_document.places);
        m_document.places.clear();
    } else {
        placeBelow(parent, std::move(value), position);
    }
    return true;
}

void ValueBuilder::placeAtTop(std::unique_ptr<data::Value> value, Position position)
{
    m_document.value = std::move(value);
    m_document.position = position;
}

void ValueBuilder::placeBelow(Open& parent, std::unique_ptr<data::Value> value, Position position)
{
    if (parent.isObject) {
        auto& object = static_cast<data::Object&>(*parent.holder);
        object.setNew(parent.key.c_str(), value.release());
        m_document.places.add(&object, {std::move(parent.key), parent.keyPosition, position});
    } else {
        auto& array = static_cast<data::Array&>(*parent.holder);
        array.pushNew(value.release());
        m_document.places.add(&array, {{}, {}, position});
    }
}

bool ValueBuilder::givesEntries() const
{
    return m_handler != nullptr && m_open.size() == 1 && !m_open.front().isObject;
}

void ValueBuilder::checkText(std::string_view text) const
{
    if (hasLoneSurrogate(text)) {
        refuse(m_stream.token(), "this text has half of a surrogate pair in an escape, which is no "
                                 "character");
    }
}

void ValueBuilder::refuse(Position position, std::string const& what) const
{
    throw Failure(placeText(m_file, position), what);
}

std::string ValueBuilder::path() const
{
    Path path;
    for (auto const& level : m_open) {
        level.isObject ? path.enter(level.key) : path.enter(level.children);
    }
    return path.text();
}

} // namespace kiv::json
