#include "values/Blob.h"

#include "values/ConstVisitor.h"

namespace zel::dataformats::data {

using zel::common::types::BufferDescriptor;

Blob::Blob(BufferDescriptor<char const> bytes) : m_bytes(bytes.data(), bytes.size()) {}

Blob::~Blob() = default;

void Blob::accept(ConstVisitor& visitor) const
{
    visitor.visitBlob(get());
}

char const* Blob::typeName() const noexcept
{
    return "Blob";
}

std::int32_t Blob::getType() const
{
    return ValueType::Blob;
}

Blob* Blob::clone() const
{
    return new Blob{get()};
}

BufferDescriptor<char const> Blob::get() const noexcept
{
    return {m_bytes.data(), m_bytes.size()};
}

} // namespace zel::dataformats::data
