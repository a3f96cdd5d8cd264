#include "bench/Cases.h"

#include <google/protobuf/descriptor.h>
#include <google/protobuf/message.h>

#include <stdexcept>

namespace bench {

namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;
using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::Ref;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;
using zel::dataformats::data::ValueType;

void fill(Message& message, Object const& object);

void fillField(Message& message, FieldDescriptor const& field, Value const& value)
{
    auto const& reflection = *message.GetReflection();
    bool const list = field.is_repeated();
    switch (field.cpp_type()) {
    case FieldDescriptor::CPPTYPE_STRING:
        list ? reflection.AddString(&message, &field, Ref(&value).asString())
             : reflection.SetString(&message, &field, Ref(&value).asString());
        break;
    case FieldDescriptor::CPPTYPE_INT32:
        list ? reflection.AddInt32(&message, &field, Ref(&value).asInteger())
             : reflection.SetInt32(&message, &field, Ref(&value).asInteger());
        break;
    case FieldDescriptor::CPPTYPE_DOUBLE:
        reflection.SetDouble(&message, &field, Ref(&value).asFloat());
        break;
    case FieldDescriptor::CPPTYPE_BOOL:
        reflection.SetBool(&message, &field, Ref(&value).asBoolean());
        break;
    default:
        fill(list ? *reflection.AddMessage(&message, &field)
                  : *reflection.MutableMessage(&message, &field),
             static_cast<Object const&>(value));
    }
}

void fill(Message& message, Object const& object)
{
    for (auto const& entry : object.get()) {
        auto const* const field = message.GetDescriptor()->FindFieldByName(entry.first);
        if (field == nullptr) {
            throw std::logic_error("no field in the message for " + entry.first);
        }
        auto const& value = *static_cast<Value const*>(entry.second);
        if (value.getType() != ValueType::Array) {
            fillField(message, *field, value);
            continue;
        }
        for (Value const* each : const_cast<Array&>(static_cast<Array const&>(value)).get()) {
            fillField(message, *field, *each);
        }
    }
}

std::unique_ptr<Message> bring(Message const& prototype, Array& document)
{
    std::unique_ptr<Message> message(prototype.New());
    auto const& objects = *message->GetDescriptor()->field(0);
    for (Value const* entry : document.get()) {
        fill(*message->GetReflection()->AddMessage(message.get(), &objects),
             static_cast<Object const&>(*entry));
    }
    return message;
}

std::unique_ptr<Value> bringBack(Message const& message);

/// The value of a field, or of the entry at `index` if it is a list.
Value* valueOf(Message const& message, FieldDescriptor const& field, int index)
{
    auto const& reflection = *message.GetReflection();
    bool const list = field.is_repeated();
    std::string scratch;
    switch (field.cpp_type()) {
    case FieldDescriptor::CPPTYPE_STRING:
        return new String(
            list ? reflection.GetRepeatedStringReference(message, &field, index, &scratch)
                 : reflection.GetStringReference(message, &field, &scratch));
    case FieldDescriptor::CPPTYPE_INT32:
        return new Integer(list ? reflection.GetRepeatedInt32(message, &field, index)
                                : reflection.GetInt32(message, &field));
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return new Float(reflection.GetDouble(message, &field));
    case FieldDescriptor::CPPTYPE_BOOL:
        return new Boolean(reflection.GetBool(message, &field));
    default:
        return bringBack(list ? reflection.GetRepeatedMessage(message, &field, index)
                              : reflection.GetMessage(message, &field))
            .release();
    }
}

std::unique_ptr<Array> listOf(Message const& message, FieldDescriptor const& field)
{
    auto array = std::make_unique<Array>();
    int const size = message.GetReflection()->FieldSize(message, &field);
    for (int index = 0; index < size; ++index) {
        array->pushNew(valueOf(message, field, index));
    }
    return array;
}

std::unique_ptr<Value> bringBack(Message const& message)
{
    std::vector<FieldDescriptor const*> fields;
    message.GetReflection()->ListFields(message, &fields);
    auto object = std::make_unique<Object>();
    for (FieldDescriptor const* field : fields) {
        object->setNew(field->name().c_str(), field->is_repeated()
                                                  ? listOf(message, *field).release()
                                                  : valueOf(message, *field, 0));
    }
    return object;
}

/// `radio::Stations` is `peer.RadioStations`.
Message const& prototypeOf(std::string_view resource)
{
    std::string name(resource);
    name.erase(name.find("::"), 2);
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    auto const* const descriptor =
        google::protobuf::DescriptorPool::generated_pool()->FindMessageTypeByName("peer." + name);
    if (descriptor == nullptr) {
        throw std::logic_error("no message for " + name);
    }
    return *google::protobuf::MessageFactory::generated_factory()->GetPrototype(descriptor);
}

} // namespace

void addProtobuf(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    Message const& prototype = prototypeOf(workload.resource);
    std::shared_ptr<Message> const message = bring(prototype, *document);
    auto const bytes = std::make_shared<std::string>(message->SerializeAsString());
    FieldDescriptor const& objects = *message->GetDescriptor()->field(0);
    if (bring(prototype, *listOf(*message, objects))->SerializeAsString() != *bytes) {
        throw std::logic_error("protobuf loses something of " + std::string(workload.name));
    }
    std::string const name(workload.name);
    std::size_t const elements = document->get().size();
    cases.push_back({name, "deserialize", "protobuf", elements,
                     [&prototype, document] { return Result(bring(prototype, *document)); }});
    cases.push_back({name, "serialize", "protobuf", elements,
                     [message, &objects] { return Result(listOf(*message, objects)); }});
    cases.push_back({name, "deserialize", "protobuf-own", elements, [&prototype, bytes] {
                         std::unique_ptr<Message> result(prototype.New());
                         if (!result->ParseFromString(*bytes)) {
                             throw std::logic_error("protobuf cannot read its own bytes");
                         }
                         return Result(std::move(result));
                     }});
    cases.push_back({name, "serialize", "protobuf-own", elements, [message] {
                         return Result(std::make_unique<std::string>(message->SerializeAsString()));
                     }});
}

} // namespace bench
