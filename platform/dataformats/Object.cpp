#include "values/Object.h"

#include "EntryBlock.h"
#include "release.h"
#include "values/ConstVisitor.h"

#include <memory>
#include <string_view>

namespace zel::dataformats::data {

using zel::common::types::PtrMap;

Object::Object() noexcept = default;

Object::~Object()
{
    zel::common::types::release(m_entries.detach());
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
        copy->store(key, value == nullptr ? nullptr : static_cast<Value const*>(value)->clone());
    }
    return copy.release();
}

void Object::setNew(char const* key, Value* value)
{
    store(key, value);
}

void Object::store(std::string_view key, Value* value)
{
    std::unique_ptr<Value> owned{value};
    void*& slot = m_entries.slot(key);
    auto* const old = static_cast<Value*>(slot);
    slot = owned.release();
    if (old != value) {
        delete old;
    }
}

PtrMap<std::string, Value> const& Object::get() const noexcept
{
    return m_entries;
}

} // namespace zel::dataformats::data
