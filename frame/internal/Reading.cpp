#include "frame/internal/Reading.h"

#include "frame/internal/Values.h"

#include <cstdint>
#include <cstring>

namespace zel::kiv::common::internal {

using zel::dataformats::data::Array;
using zel::dataformats::data::Ref;
using zel::dataformats::data::Value;
using zel::dataformats::data::ValueType;

NestedObject::NestedObject(Value const& value) : m_current(&m_temporary)
{
    // The value is only read, there and later, but what makes it an object takes and gives it as
    // one that may be written to.
    IObjectBase::normalizeObject(const_cast<Value&>(value), m_current);
}

namespace {

// What a string holds without memory of its own, in the usual standard library.
constexpr std::string_view blanks = "               ";

/// Copies the first and the last bytes of a text, which may overlap, as one word each.
template <typename Word>
void copyEnds(char* to, char const* from, std::size_t length)
{
    Word first = 0;
    Word last = 0;
    std::memcpy(&first, from, sizeof first);
    std::memcpy(&last, from + length - sizeof last, sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + length - sizeof last, &last, sizeof last);
}

/// Copies a text of no more than 16 bytes without a call.
void copyShort(char* to, char const* from, std::size_t length)
{
    if (length >= sizeof(std::uint64_t)) {
        copyEnds<std::uint64_t>(to, from, length);
    } else if (length >= sizeof(std::uint32_t)) {
        copyEnds<std::uint32_t>(to, from, length);
    } else if (length >= sizeof(std::uint16_t)) {
        copyEnds<std::uint16_t>(to, from, length);
    } else if (length != 0) {
        *to = *from;
    }
}

Value const* lookUp(ObjectReader::Map const& map, std::string const& key)
{
    auto const entry = map.find(key);
    return entry == map.end() ? nullptr : valueOf(*entry);
}

// Not in line, so that a key that is absent costs little.
template <auto answer, typename Setter>
[[gnu::noinline]] void set(IObjectBase& target, Setter setter, Value const& value)
{
    Ref const reference(&value);
    (target.*setter)((reference.*answer)());
}

/// Does that with the entries of a list, if it is one, passing over those that are null.
template <typename Entries, typename Use>
void eachOf(Entries const* entries, Use use)
{
    if (entries == nullptr) {
        return;
    }
    for (Value const* const entry : *entries) {
        if (entry != nullptr) {
            use(*entry);
        }
    }
}

void attach(Value const& value, IObjectBase& owner, Make make, Give<IObjectBase> give)
{
    NestedObject const nested(value);
    std::unique_ptr<IObjectBase> element(make());
    element->deserialize(&nested.get());
    give(owner, element.release());
}

} // namespace

ObjectReader::ObjectReader(Map const& map, IObjectBase& target, std::size_t longestKey)
    : m_map(&map), m_target(&target)
{
    if (longestKey > m_key.capacity()) {
        m_key.reserve(longestKey);
    }
}

// More time goes into making keys than into anything else here. A short one is a string of a fixed
// length that is filled and cut off: with all of that in line, no call is left but the look-up.
[[gnu::flatten, gnu::noinline]] Value const* ObjectReader::find(Key key)
{
    if (key.length <= blanks.size()) {
        std::string text(blanks.data(), blanks.size());
        copyShort(text.data(), key.text, key.length);
        text.erase(key.length);
        return lookUp(*m_map, text);
    }
    m_key.clear();
    m_key.append(key.text, key.length);
    return lookUp(*m_map, m_key);
}

ObjectReader::Entries const* ObjectReader::findEntries(Key key)
{
    Value const* const value = find(key);
    if (value == nullptr || value->getType() != ValueType::Array) {
        return nullptr;
    }
    // The getter of an array is not const, though it changes nothing.
    return &const_cast<Array*>(static_cast<Array const*>(value))->get();
}

void ObjectReader::readText(Key key, TextSetter setter)
{
    if (Value const* const value = find(key)) {
        set<&Ref::asString>(*m_target, setter, *value);
    }
}

void ObjectReader::readInteger(Key key, IntegerSetter setter)
{
    if (Value const* const value = find(key)) {
        set<&Ref::asInteger>(*m_target, setter, *value);
    }
}

void ObjectReader::readFloat(Key key, FloatSetter setter)
{
    if (Value const* const value = find(key)) {
        set<&Ref::asFloat>(*m_target, setter, *value);
    }
}

void ObjectReader::readFlag(Key key, FlagSetter setter)
{
    if (Value const* const value = find(key)) {
        set<&Ref::asBoolean>(*m_target, setter, *value);
    }
}

void ObjectReader::readTexts(Key key, TextSetter adder)
{
    eachOf(findEntries(key),
           [&](Value const& entry) { (m_target->*adder)(Ref(&entry).asString()); });
}

void ObjectReader::readIntegers(Key key, IntegerSetter adder)
{
    eachOf(findEntries(key),
           [&](Value const& entry) { (m_target->*adder)(Ref(&entry).asInteger()); });
}

void ObjectReader::attachOne(Key key, Make make, Give<IObjectBase> give)
{
    if (Value const* const value = find(key)) {
        attach(*value, *m_target, make, give);
    }
}

void ObjectReader::attachAll(Key key, Make make, Give<IObjectBase> give)
{
    eachOf(findEntries(key), [&](Value const& entry) { attach(entry, *m_target, make, give); });
}

} // namespace zel::kiv::common::internal
