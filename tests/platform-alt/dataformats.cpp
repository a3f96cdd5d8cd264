#include "values/values.h"

#include <memory>
#include <stdexcept>

namespace zel::dataformats::data {

namespace {

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

Array::~Array()
{
    for (Value* const each : m_entries) {
        delete each;
    }
}

void Array::dispatch(ConstVisitor& visitor) const
{
    visitor.visitArray(m_entries);
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
    for (auto const& entry : m_entries.held()) {
        delete static_cast<Value*>(entry.second);
    }
}

void Object::dispatch(ConstVisitor& visitor) const
{
    visitor.visitObject(m_entries);
}

Value* Object::clone() const
{
    auto copy = std::make_unique<Object>();
    for (auto const& entry : m_entries.held()) {
        copy->setNew(entry.first.c_str(), cloneOf(static_cast<Value const*>(entry.second)));
    }
    return copy.release();
}

void Object::setNew(char const* key, Value* value)
{
    if (!m_entries.held().emplace(key, value).second) {
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
#ifdef OTHER_PLATFORM_IS_BARE
        throw std::invalid_argument("no value");
#endif
        return -1;
    }
    value->dispatch(*this);
    return 0;
}

} // namespace zel::dataformats::data
