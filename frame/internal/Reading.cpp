#include "frame/internal/Reading.h"

#include "frame/internal/Values.h"

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

// A third of all instructions goes into look-ups, so the call is spared.
[[gnu::always_inline]] inline Value const* lookUp(ObjectReader::Map const& map, std::string& buffer,
                                                  Key key)
{
    // Clearing and appending takes fewer instructions than assigning does.
    buffer.clear();
    buffer.append(key.text, key.length);
    auto const entry = map.find(buffer);
    return entry == map.end() ? nullptr : valueOf(*entry);
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

Value const* ObjectReader::find(Key key)
{
    return lookUp(*m_map, m_key, key);
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
    if (Value const* const value = lookUp(*m_map, m_key, key)) {
        (m_target->*setter)(Ref(value).asString());
    }
}

void ObjectReader::readInteger(Key key, IntegerSetter setter)
{
    if (Value const* const value = lookUp(*m_map, m_key, key)) {
        (m_target->*setter)(Ref(value).asInteger());
    }
}

void ObjectReader::readFloat(Key key, FloatSetter setter)
{
    if (Value const* const value = lookUp(*m_map, m_key, key)) {
        (m_target->*setter)(Ref(value).asFloat());
    }
}

void ObjectReader::readFlag(Key key, FlagSetter setter)
{
    if (Value const* const value = lookUp(*m_map, m_key, key)) {
        (m_target->*setter)(Ref(value).asBoolean());
    }
}

void ObjectReader::readTexts(Key key, TextSetter adder)
{
    auto const* const entries = findEntries(key);
    if (entries == nullptr) {
        return;
    }
    for (Value const* const entry : *entries) {
        if (entry != nullptr) {
            (m_target->*adder)(Ref(entry).asString());
        }
    }
}

void ObjectReader::readIntegers(Key key, IntegerSetter adder)
{
    auto const* const entries = findEntries(key);
    if (entries == nullptr) {
        return;
    }
    for (Value const* const entry : *entries) {
        if (entry != nullptr) {
            (m_target->*adder)(Ref(entry).asInteger());
        }
    }
}

void ObjectReader::attachOne(Key key, Make make, Give<IObjectBase> give)
{
    if (Value const* const value = find(key)) {
        attach(*value, *m_target, make, give);
    }
}

void ObjectReader::attachAll(Key key, Make make, Give<IObjectBase> give)
{
    auto const* const entries = findEntries(key);
    if (entries == nullptr) {
        return;
    }
    for (Value const* const entry : *entries) {
        if (entry != nullptr) {
            attach(*entry, *m_target, make, give);
        }
    }
}

} // namespace zel::kiv::common::internal
