#include "frame/ExternalResourceObject.h"

#include "frame/internal/Notices.h"
#include "frame/internal/ObjectReader.h"
#include "frame/internal/ObjectWriter.h"
#include "frame/internal/VisitorTexts.h"

namespace zel::kiv::common {

using zel::common::types::BufferDescriptor;
using zel::common::types::PtrMap;
using zel::common::types::PtrVector;
using zel::dataformats::data::Value;

ExternalResourceObject::ExternalResourceObject() : IObjectBase("externalResourceObject") {}

ExternalResourceObject::~ExternalResourceObject() = default;

std::unique_ptr<Value> ExternalResourceObject::serialize(SerializationType type) const
{
    if (type == SerializationType::Reference) {
        return internal::makeReference(*this, getUri());
    }
    internal::ObjectWriter object(*this, type);
    if (m_id_isSet) {
        object.addString("id", m_id);
    }
    if (m_name_isSet) {
        object.addString("name", m_name);
    }
    if (m_uri_isSet) {
        object.addString("uri", m_uri);
    }
    return object.take();
}

bool ExternalResourceObject::deserialize(Value const* value)
{
    ExternalResourceObjectDeserializer visitor(*this);
    internal::notice::Reading const reading(*this, value);
    visitor.visit(value);
    reading.done();
    return true;
}

std::string const& ExternalResourceObject::getId() const
{
    return m_id;
}

void ExternalResourceObject::setId(std::string const& value)
{
    m_id = value;
    m_id_isSet = true;
}

bool ExternalResourceObject::isIdSet() const
{
    return m_id_isSet;
}

std::string const& ExternalResourceObject::getName() const
{
    return m_name;
}

void ExternalResourceObject::setName(std::string const& value)
{
    m_name = value;
    m_name_isSet = true;
}

bool ExternalResourceObject::isNameSet() const
{
    return m_name_isSet;
}

std::string const& ExternalResourceObject::getUri() const
{
    return m_uri;
}

void ExternalResourceObject::setUri(std::string const& value)
{
    m_uri = value;
    m_uri_isSet = true;
}

bool ExternalResourceObject::isUriSet() const
{
    return m_uri_isSet;
}

ExternalResourceObjectDeserializer::ExternalResourceObjectDeserializer(
    ExternalResourceObject& target)
    : m_target(&target)
{
}

ExternalResourceObjectDeserializer::~ExternalResourceObjectDeserializer() = default;

void ExternalResourceObjectDeserializer::note(char const* text)
{
    m_error = true;
    m_errorText += text;
}

void ExternalResourceObjectDeserializer::visitNull()
{
    note(internal::elementText::null);
}

void ExternalResourceObjectDeserializer::visitBoolean(bool /*value*/)
{
    note(internal::elementText::boolean);
}

void ExternalResourceObjectDeserializer::visitInteger(int /*value*/)
{
    note(internal::elementText::integer);
}

void ExternalResourceObjectDeserializer::visitFloat(double /*value*/)
{
    note(internal::elementText::floating);
}

void ExternalResourceObjectDeserializer::visitString(BufferDescriptor<char const> /*value*/)
{
    note(internal::elementText::string);
}

void ExternalResourceObjectDeserializer::visitBlob(BufferDescriptor<char const> /*value*/)
{
    note(internal::elementText::blob);
}

void ExternalResourceObjectDeserializer::visitArray(PtrVector<Value> const& /*entries*/)
{
    note(internal::elementText::array);
}

void ExternalResourceObjectDeserializer::visitObject(PtrMap<std::string, Value> const& map)
{
    internal::ObjectReader fields(*m_target);
    fields.readFrom(map);
    fields.readString("id", &ExternalResourceObject::setId);
    fields.readString("name", &ExternalResourceObject::setName);
    fields.readString("uri", &ExternalResourceObject::setUri);
}

} // namespace zel::kiv::common
