#include "frame/IObjectBase.h"

#include "frame/internal/Notices.h"
#include "frame/internal/Values.h"

namespace zel::kiv::common {

using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;
using zel::dataformats::data::ValueType;

IObjectBase::IObjectBase(std::string_view elementKey) : m_elementKey(elementKey) {}

IObjectBase::~IObjectBase() = default;

bool IObjectBase::normalizeObject(Value& value, Object*& object)
{
    auto const type = value.getType();
    if (type == ValueType::String) {
        object->setNew("uri", value.clone());
        std::string service;
        std::string resource;
        std::string id;
        getUriSplitted(static_cast<String const&>(value).get(), service, resource, id);
        if (!id.empty()) {
            object->setNew("id", new String(id));
        }
        return true;
    }
    if (type == ValueType::Object) {
        object = static_cast<Object*>(&value);
        return true;
    }
    return false;
}

std::string IObjectBase::getServiceAndResourceString(Object const& object)
{
    auto const& map = object.get();
    auto const entry = map.find("uri");
    if (entry == map.end()) {
        return {};
    }
    Value const* const value = internal::valueOf(*entry);
    if (internal::notice::passesUri(object, value)) {
        return {};
    }
    std::string const& uri = static_cast<String const*>(value)->get();
    auto const serviceEnd = uri.find('/', 1);
    if (serviceEnd == std::string::npos) {
        return {};
    }
    auto const resourceEnd = uri.find('/', serviceEnd + 1);
    if (resourceEnd == std::string::npos) {
        return {};
    }
    return uri.substr(1, resourceEnd - 1);
}

} // namespace zel::kiv::common
