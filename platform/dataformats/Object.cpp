#include "values/Object.h"

#include "values/ConstVisitor.h"

#include <memory>

namespace zel::dataformats::data {

using zel::common::types::PtrMap;

Object::Object() noexcept = default;

Object::~Object()
{
    for (auto const& [key, value] : m_entries) {
        delete static_cast<Value*>(value);
    }
}

void Object::accept(ConstVisitor& visitor) const
{
    visitor.visitObject(m_entries);
}

char const* Object::typeName() const noexcept
{
    return "Object";
}

std::int32_t Object::getType() const
{
    return ValueType::Object;
}

Object* Object::clone() const
{
    auto copy = std::make_unique<Object>();
    for (auto const& [key, value] : m_entries) {
        copy->setNew(key.c_str(),
                     value == nullptr ? nullptr : static_cast<Value const*>(value)->clone());
    }
    return copy.release();
}

void Object::setNew(char const* key, Value* value)
{
    std::unique_ptr<Value> owned{value};
    void*& place = m_entries.m_entries[key];
    std::unique_ptr<Value> const replaced{static_cast<Value*>(place)};
    place = owned.release();
}

PtrMap<std::string, Value> const& Object::get() const noexcept
{
    return m_entries;
}

} // namespace zel::dataformats::data
