#include "tests/fuzz/Tree.h"

#include <cstring>
#include <set>
#include <string>

namespace fuzz {
namespace {

using namespace zel::dataformats::data;
namespace catalogue = zel::kiv::catalogue;
using catalogue::Kind;

std::set<std::string_view> keysOfPolymorphicFields()
{
    std::set<std::string_view> keys;
    for (auto const& resource : catalogue::resources()) {
        for (auto const& field : resource.fields) {
            if (field.kind == Kind::Polymorphic) {
                keys.insert(field.key);
            }
        }
    }
    return keys;
}

bool mayBePolymorphic(std::string_view key)
{
    static std::set<std::string_view> const keys = keysOfPolymorphicFields();
    return keys.contains(key);
}

class Maker {
public:
    explicit Maker(Bytes& bytes) : m_bytes(bytes) {}

    std::unique_ptr<Value> entries(catalogue::Resource const* resource)
    {
        auto array = std::make_unique<Array>();
        do {
            array->pushNew(entry(resource).release());
        } while (m_bytes.byte() % 4 != 0);
        return array;
    }

    /// Any value at all; objects in it are read by nobody knows whom.
    std::unique_ptr<Value> any(std::string const& key)
    {
        switch (m_bytes.below(9)) {
        case 0:
            return nullptr;
        case 1:
            return std::make_unique<Null>();
        case 2:
            return std::make_unique<Boolean>(m_bytes.byte() % 2 != 0);
        case 3:
            return std::make_unique<Integer>(m_bytes.bits<int>());
        case 4:
            return std::make_unique<Float>(m_bytes.bits<double>());
        case 5: {
            std::string const text = m_bytes.text(20);
            return std::make_unique<Blob>(
                zel::common::types::BufferDescriptor<char const>(text.data(), text.size()));
        }
        case 6:
            return std::make_unique<String>(text());
        case 7:
            return entries(m_bytes.byte() % 2 != 0 ? anyResource() : nullptr);
        default:
            return object(m_bytes.byte() % 2 != 0 ? anyResource() : nullptr, key);
        }
    }

private:
    catalogue::Resource const* anyResource()
    {
        auto const all = catalogue::resources();
        return &all[m_bytes.below(all.size())];
    }

    std::unique_ptr<Value> entry(catalogue::Resource const* resource)
    {
        return m_bytes.byte() % 8 == 7 ? any({}) : object(resource, {});
    }

    /// An object as it may stand under `key`, with keys that `resource` knows, if there is one.
    std::unique_ptr<Value> object(catalogue::Resource const* resource, std::string const& key)
    {
        auto result = std::make_unique<Object>();
        std::size_t const count = m_bytes.below(8);
        for (std::size_t index = 0; index < count && !m_bytes.empty(); ++index) {
            addEntry(*result, resource, mayBePolymorphic(key));
        }
        return result;
    }

    void addEntry(Object& object, catalogue::Resource const* resource, bool uriIsText)
    {
        std::string key;
        catalogue::Field const* field = nullptr;
        if (resource != nullptr && m_bytes.byte() % 8 != 7) {
            field = &resource->fields[m_bytes.below(resource->fields.size())];
            key = field->key;
        } else {
            key = m_bytes.text(20);
            key.resize(std::strlen(key.c_str()));
        }
        if (uriIsText && key == "uri") {
            object.setNew(key.c_str(), new String(text()));
            return;
        }
        auto value = field == nullptr || m_bytes.byte() % 8 == 7 ? any(key) : fitting(*field);
        object.setNew(key.c_str(), value.release());
    }

    std::unique_ptr<Value> fitting(catalogue::Field const& field)
    {
        switch (field.kind) {
        case Kind::String:
            return std::make_unique<String>(text());
        case Kind::Int:
            return std::make_unique<Integer>(m_bytes.bits<int>());
        case Kind::Double:
            return std::make_unique<Float>(m_bytes.bits<double>());
        case Kind::Bool:
            return std::make_unique<Boolean>(m_bytes.byte() % 2 != 0);
        case Kind::StringList:
        case Kind::IntList:
            return plainList(field.kind);
        case Kind::ElementList:
        case Kind::ExternalList:
            return entries(field.targets.front());
        default:
            return nested(field);
        }
    }

    std::unique_ptr<Value> plainList(Kind kind)
    {
        auto array = std::make_unique<Array>();
        while (m_bytes.byte() % 4 != 0) {
            array->pushNew(kind == Kind::IntList
                               ? static_cast<Value*>(new Integer(m_bytes.bits<int>()))
                               : new String(text()));
        }
        return array;
    }

    std::unique_ptr<Value> nested(catalogue::Field const& field)
    {
        auto const* const target = field.targets[m_bytes.below(field.targets.size())];
        if (m_bytes.byte() % 4 == 3) {
            return std::make_unique<String>(uriIn(target));
        }
        auto result = object(target, std::string(field.key));
        if (m_bytes.byte() % 4 != 3) {
            static_cast<Object&>(*result).setNew("uri", new String(uriIn(target)));
        }
        return result;
    }

    std::string uriIn(catalogue::Resource const* target)
    {
        if (target == nullptr) {
            return "/any/thing/" + m_bytes.text(4);
        }
        return "/" + std::string(target->service) + "/" + std::string(target->resourceKey) + "/" +
               m_bytes.text(4);
    }

    std::string text()
    {
        switch (m_bytes.below(4)) {
        case 0:
            return m_bytes.text(8);
        case 1:
            return uriIn(anyResource());
        case 2:
            return m_bytes.text(300);
        default:
            return std::to_string(m_bytes.bits<int>());
        }
    }

    Bytes& m_bytes;
};

} // namespace

std::unique_ptr<Value> treeFor(catalogue::Resource const& resource, Bytes& bytes)
{
    Maker maker(bytes);
    return bytes.byte() % 16 == 15 ? maker.any({}) : maker.entries(&resource);
}

} // namespace fuzz
