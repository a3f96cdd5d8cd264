#include "tools/kiv/walk/ElementWalk.h"

#include "tools/kiv/check/Reading.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <vector>

namespace kiv {

namespace {

using catalogue::Kind;
using data::ValueType;

/// The target that the library picks for `serviceAndResource`, or null if it is none of the field's
/// resources: then the value is dropped or becomes an external reference.
catalogue::Resource const* dispatch(catalogue::Field const& field,
                                    std::string_view serviceAndResource)
{
    auto const found =
        std::find_if(field.targets.begin(), field.targets.end(), [&](auto const* target) {
            return !target->isExternal() && nameOf(target) == serviceAndResource;
        });
    return found == field.targets.end() ? nullptr : *found;
}

} // namespace

void ElementWalk::walkEntry(catalogue::Resource const& resource, std::size_t index,
                            data::Value const* entry)
{
    if (entry == nullptr || entry->getType() != ValueType::Object) {
        return; // the element stays empty
    }
    m_path.enter(index);
    walkElement(&resource, static_cast<data::Object const&>(*entry));
    m_path.leave();
}

void ElementWalk::walkElement(catalogue::Resource const* resource, data::Object const& object)
{
    m_observer.onElement(m_path, resource, object);
    for (auto const& field : resource->fields) {
        m_key.assign(field.key);
        auto const found = object.get().find(m_key);
        if (found == object.get().end() || found->second == nullptr) {
            continue;
        }
        m_path.enter(field.key);
        walkField(field, object, *static_cast<data::Value*>(found->second));
        m_path.leave();
    }
}

void ElementWalk::walkField(catalogue::Field const& field, data::Object const& holder,
                            data::Value& value)
{
    m_observer.onField(m_path, field, holder, value);
    if (field.kind == Kind::Polymorphic) {
        walkPolymorphic(field, holder, value);
    } else if (catalogue::isList(field.kind)) {
        walkList(field, value);
    } else if (catalogue::isNested(field.kind)) {
        walkNested(field.targets.front(), value);
    }
}

void ElementWalk::walkList(catalogue::Field const& field, data::Value& value)
{
    if (value.getType() != ValueType::Array) {
        return; // the field is skipped
    }
    auto& list = static_cast<data::Array&>(value);
    std::size_t index = 0;
    for (data::Value* entry : list.get()) {
        if (entry != nullptr) {
            m_path.enter(index);
            m_observer.onEntry(m_path, field, list, index, *entry);
            if (catalogue::isNested(field.kind)) {
                walkNested(field.targets.front(), *entry);
            }
            m_path.leave();
        }
        ++index;
    }
}

void ElementWalk::walkNested(catalogue::Resource const* target, data::Value& value)
{
    // A text is a uri, and all that the element gets of anything else is nothing.
    if (value.getType() == ValueType::Object) {
        walkElement(target, static_cast<data::Object const&>(value));
    }
}

void ElementWalk::walkPolymorphic(catalogue::Field const& field, data::Object const& holder,
                                  data::Value& value)
{
    if (value.getType() == ValueType::Object &&
        !mayReadUri(static_cast<data::Object const&>(value))) {
        return;
    }
    std::string const name = serviceAndResourceOf(value);
    catalogue::Resource const* const target = dispatch(field, name);
    m_observer.onDispatch(m_path, {field, holder, value, name, target});
    if (target != nullptr) {
        walkNested(target, value);
    } else if (!name.empty() && field.hasLastResort()) {
        walkNested(&catalogue::external(), value);
    }
}

bool ElementWalk::mayReadUri(data::Object const& object)
{
    m_key.assign("uri");
    auto const found = object.get().find(m_key);
    if (found == object.get().end()) {
        return true;
    }
    auto const* const uri = static_cast<data::Value const*>(found->second);
    if (uri != nullptr && uri->getType() == ValueType::String) {
        return true;
    }
    m_path.enter("uri");
    m_observer.onForbiddenUri(m_path, object, uri);
    m_path.leave();
    return false;
}

} // namespace kiv
