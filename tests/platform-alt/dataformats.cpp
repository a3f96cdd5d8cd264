#include "values/values.h"

#include <memory>
#include <stdexcept>

namespace zel::dataformats::data {

namespace {

zel::common::types::BufferDescriptor<char const> viewOf(std::string const& text)
{
    return {text.data(), static_cast<std::uint32_t>(text.size())};
}

template <typename Type>
Type const& castTo(Value const* value)
{
    auto const* const cast = dynamic_cast<Type const*>(value);
    if (cast == nullptr) {
        throw std::invalid_argument("a value of another type");
    }
    return *cast;
}

Value* cloneOf(Value const* value)
{
    return value == nullptr ? nullptr : value->clone();
}

} // namespace

Value::~Value() = default;

char const* Null::typeName() const
{
    return "Null";
}

void Null::dispatch(ConstVisitor& visitor) const
{
    visitor.visitNull();
}

std::int32_t Null::getType() const
{
    return ValueType::Null;
}

Value* Null::clone() const
{
    return new Null;
}

Boolean::Boolean(bool value) : m_value(value) {}

char const* Boolean::typeName() const
{
    return "Boolean";
}

void Boolean::dispatch(ConstVisitor& visitor) const
{
    visitor.visitBoolean(m_value);
}

std::int32_t Boolean::getType() const
{
    return ValueType::Boolean;
}

Value* Boolean::clone() const
{
    return new Boolean(m_value);
}

Integer::Integer(int value) : m_value(value) {}

char const* Integer::typeName() const
{
    return "Integer";
}

void Integer::dispatch(ConstVisitor& visitor) const
{
    visitor.visitInteger(m_value);
}

std::int32_t Integer::getType() const
{
    return ValueType::Integer;
}

Value* Integer::clone() const
{
    return new Integer(m_value);
}

Float::Float(double value) : m_value(value) {}

char const* Float::typeName() const
{
    return "Float";
}

void Float::dispatch(ConstVisitor& visitor) const
{
    visitor.visitFloat(m_value);
}

std::int32_t Float::getType() const
{
    return ValueType::Float;
}

Value* Float::clone() const
{
    return new Float(m_value);
}

String::String(std::string const& text) : m_text(text) {}

char const* String::typeName() const
{
    return "String";
}

void String::dispatch(ConstVisitor& visitor) const
{
    visitor.visitString(viewOf(m_text));
}

std::int32_t String::getType() const
{
    return ValueType::String;
}

Value* String::clone() const
{
    return new String(m_text);
}

Blob::Blob(zel::common::types::BufferDescriptor<char const> bytes)
    : m_bytes(bytes.start, bytes.length)
{
}

char const* Blob::typeName() const
{
    return "Blob";
}

void Blob::dispatch(ConstVisitor& visitor) const
{
    visitor.visitBlob(viewOf(m_bytes));
}

std::int32_t Blob::getType() const
{
    return ValueType::Blob;
}

Value* Blob::clone() const
{
    return new Blob(viewOf(m_bytes));
}

Array::~Array()
{
    for (Value* const each : m_entries) {
        delete each;
    }
}

char const* Array::typeName() const
{
    return "Array";
}

void Array::dispatch(ConstVisitor& visitor) const
{
    visitor.visitArray(m_entries);
}

std::int32_t Array::getType() const
{
    return ValueType::Array;
}

Value* Array::clone() const
{
    auto copy = std::make_unique<Array>();
    for (Value const* const each : m_entries) {
        copy->pushNew(cloneOf(each));
    }
    return copy.release();
}

void Array::pushNew(Value* value)
{
    m_entries.m_entries.push_back(value);
}

Object::~Object()
{
    for (auto const& entry : m_entries) {
        delete static_cast<Value*>(entry.second);
    }
}

char const* Object::typeName() const
{
    return "Object";
}

void Object::dispatch(ConstVisitor& visitor) const
{
    visitor.visitObject(m_entries);
}

std::int32_t Object::getType() const
{
    return ValueType::Object;
}

Value* Object::clone() const
{
    auto copy = std::make_unique<Object>();
    for (auto const& entry : m_entries) {
        copy->setNew(entry.first.c_str(), cloneOf(static_cast<Value const*>(entry.second)));
    }
    return copy.release();
}

void Object::setNew(char const* key, Value* value)
{
    if (!m_entries.emplace(key, value).second) {
        delete value;
        throw std::logic_error("a key twice in one object");
    }
}

std::string Ref::asString() const
{
    return castTo<String>(m_value).get();
}

int Ref::asInteger() const
{
    return castTo<Integer>(m_value).get();
}

bool Ref::asBoolean() const
{
    return castTo<Boolean>(m_value).get();
}

double Ref::asFloat() const
{
    return castTo<Float>(m_value).get();
}

ConstVisitor::~ConstVisitor() = default;

int ConstVisitor::visit(Value const* value)
{
    if (value == nullptr) {
        return -1;
    }
    value->dispatch(*this);
    return 0;
}

} // namespace zel::dataformats::data
