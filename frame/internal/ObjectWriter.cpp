#include "frame/internal/ObjectWriter.h"

#include "frame/internal/Notices.h"

namespace zel::kiv::common::internal {

using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;

std::unique_ptr<Value> makeReference(IObjectBase const& element, std::string const& uri)
{
    auto reference = std::make_unique<String>(uri);
    notice::writesReference(element, uri, *reference);
    return reference;
}

ArrayWriter::ArrayWriter(IResourceBase const& resource)
    : m_array(std::make_unique<Array>()), m_type(SerializationType::Full)
{
    notice::writes(resource);
}

ArrayWriter::ArrayWriter(char const* key, SerializationType type)
    : m_array(std::make_unique<Array>()), m_type(type)
{
    notice::writesList(key);
}

ArrayWriter::~ArrayWriter() = default;

void ArrayWriter::add(IObjectBase const* element)
{
    notice::Writing const writing(element);
    m_array->pushNew(element->serialize(m_type).release());
}

std::unique_ptr<Value> ArrayWriter::take()
{
    notice::wroteArray(*m_array);
    return std::move(m_array);
}

ObjectWriter::ObjectWriter(IObjectBase const& element, SerializationType type)
    : m_object(std::make_unique<Object>()),
      m_nestedType(type == SerializationType::Shallow ? SerializationType::Reference : type)
{
    notice::writes(element, type);
}

ObjectWriter::~ObjectWriter() = default;

void ObjectWriter::addString(char const* key, std::string const& text)
{
    m_object->setNew(key, new String(text));
}

void ObjectWriter::addInt(char const* key, int number)
{
    m_object->setNew(key, new Integer(number));
}

void ObjectWriter::addDouble(char const* key, double number)
{
    m_object->setNew(key, new Float(number));
}

void ObjectWriter::addBool(char const* key, bool flag)
{
    m_object->setNew(key, new Boolean(flag));
}

void ObjectWriter::addStringList(char const* key, std::vector<std::string> const& texts)
{
    auto array = std::make_unique<Array>();
    for (std::string const& text : texts) {
        array->pushNew(new String(text));
    }
    m_object->setNew(key, array.release());
}

void ObjectWriter::addIntList(char const* key, std::vector<int> const& numbers)
{
    auto array = std::make_unique<Array>();
    for (int const number : numbers) {
        array->pushNew(new Integer(number));
    }
    m_object->setNew(key, array.release());
}

void ObjectWriter::addElement(char const* key, IObjectBase const* element)
{
    notice::Writing const writing(key, element);
    m_object->setNew(key, element->serialize(m_nestedType).release());
}

void ObjectWriter::addArray(char const* key, ArrayWriter& array)
{
    m_object->setNew(key, array.take().release());
}

std::unique_ptr<Value> ObjectWriter::take()
{
    notice::wroteElement(*m_object);
    return std::move(m_object);
}

} // namespace zel::kiv::common::internal
