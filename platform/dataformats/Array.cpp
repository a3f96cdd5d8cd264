#include "values/Array.h"

#include "values/ConstVisitor.h"

#include <memory>

namespace zel::dataformats::data {

using zel::common::types::PtrVector;

Array::Array() noexcept = default;

Array::~Array()
{
    for (Value const* const entry : m_entries) {
        delete entry;
    }
}

void Array::accept(ConstVisitor& visitor) const
{
    visitor.visitArray(m_entries);
}

char const* Array::typeName() const noexcept
{
    return "Array";
}

std::int32_t Array::getType() const
{
    return ValueType::Array;
}

Array* Array::clone() const
{
    auto copy = std::make_unique<Array>();
    for (Value const* const entry : m_entries) {
        copy->pushNew(entry == nullptr ? nullptr : entry->clone());
    }
    return copy.release();
}

void Array::pushNew(Value* value)
{
    std::unique_ptr<Value> owned{value};
    m_entries.m_entries.push_back(value);
    static_cast<void>(owned.release());
}

PtrVector<Value>& Array::get() noexcept
{
    return m_entries;
}

} // namespace zel::dataformats::data
