#include "frame/internal/ObjectReader.h"

#include "frame/internal/Notices.h"
#include "frame/internal/Values.h"

#include <array>
#include <string_view>
#include <utility>

namespace zel::kiv::common::internal {

using zel::dataformats::data::Array;
using zel::dataformats::data::Object;
using zel::dataformats::data::Ref;
using zel::dataformats::data::Value;
using zel::dataformats::data::ValueType;

namespace {

Value const* lookUp(ObjectReader::Map const& map, std::string const& key)
{
    auto const entry = map.find(key);
    if (entry == map.end()) {
        return nullptr;
    }
    Value const* const value = valueOf(*entry);
    if (value == nullptr) {
        notice::passesNull();
    }
    return value;
}

/// Looks up a key of that length. More time goes into making keys than into anything else here:
/// where the length is a constant, one that a string holds in place is made by two or three moves.
template <std::size_t length>
[[gnu::flatten, gnu::nonnull]] Value const* findShort(ObjectReader::Map const& map, char const* key)
{
    return lookUp(map, std::string(key, key + length));
}

using FindShort = Value const* (*)(ObjectReader::Map const&, char const*);

template <std::size_t... lengths>
constexpr std::array<FindShort, sizeof...(lengths)>
finders(std::index_sequence<lengths...> /*lengths*/)
{
    return {findShort<lengths>...};
}

// Up to the length that a string of the usual standard library holds without memory of its own.
constexpr auto shortKeys = finders(std::make_index_sequence<16>());

// For any long key, at once. It would grow if there were a longer one.
constexpr std::size_t roomForKeys = 47;

// Not in line, so that a key that is absent costs little.
template <auto answer, typename Setter>
[[gnu::noinline]] void set(IObjectBase& target, Setter setter, Value const& value)
{
    Ref const reference(&value);
    (target.*setter)((reference.*answer)());
}

/// A nested value in the form of an object: the value itself if it is an `Object`, else a temporary
/// that holds what a uri tells, which is nothing if the value is no text. One is made for each
/// field and for each entry of a list.
class NestedObject {
public:
    explicit NestedObject(Value const& value) : m_current(&m_temporary)
    {
        // The value is only read, there and later, but what makes it an object takes and gives it
        // as one that may be written to.
        IObjectBase::normalizeObject(const_cast<Value&>(value), m_current);
    }
    ~NestedObject() = default;

    NestedObject(NestedObject const&) = delete;
    NestedObject(NestedObject&&) = delete;
    NestedObject& operator=(NestedObject const&) = delete;
    NestedObject& operator=(NestedObject&&) = delete;

    [[nodiscard]] Object const& get() const { return *m_current; }

private:
    Object m_temporary;
    Object* m_current;
};

/// Makes an element, fills it from the nested value and hands it to the owner.
void attach(NestedObject const& nested, IObjectBase& owner, Handover<IObjectBase> handover)
{
    std::unique_ptr<IObjectBase> element(handover.make());
    element->deserialize(&nested.get());
    handover.give(owner, element.release());
}

// A call of its own, so that a key that is absent costs little.
[[gnu::noinline, gnu::flatten]] void attachTo(IObjectBase& owner, Value const& value,
                                              Handover<IObjectBase> handover)
{
    NestedObject const nested(value);
    notice::readsNested(value, nested.get());
    attach(nested, owner, handover);
}

/// Whom a value of that service and resource is given to, or null.
Handover<IObjectBase> const* chosen(std::string const& resource, Targets targets,
                                    Handover<IObjectBase> const* lastResort)
{
    if (resource.empty()) {
        return nullptr;
    }
    for (Target const& target : targets) {
        if (target.resource == resource) {
            return &target.handover;
        }
    }
    return lastResort;
}

} // namespace

void ObjectReader::readFrom(Map const& map)
{
    m_map = &map;
    notice::readsFields(map);
}

// A short key is made by the function for its length, a longer one in the buffer of the reader.
Value const* ObjectReader::find(Key key)
{
    notice::asks({key.text, key.length});
    return key.length < shortKeys.size() ? shortKeys[key.length](*m_map, key.text) : findLong(key);
}

// Not in line either, so that a short key costs nothing more.
[[gnu::noinline]] Value const* ObjectReader::findLong(Key key)
{
    if (m_key.capacity() < roomForKeys) {
        m_key.reserve(roomForKeys);
    }
    m_key.clear();
    m_key.append(key.text, key.length);
    return lookUp(*m_map, m_key);
}

template <typename Use>
void ObjectReader::eachEntry(Key key, Use use)
{
    Value const* const value = find(key);
    if (value == nullptr) {
        return;
    }
    if (value->getType() != ValueType::Array) {
        notice::passesNoList(*value);
        return;
    }
    notice::readsList(value);
    // The getter of an array is not const, though it changes nothing.
    for (Value const* const entry : const_cast<Array*>(static_cast<Array const*>(value))->get()) {
        notice::readsEntry(entry);
        if (entry != nullptr) {
            use(*entry);
        }
    }
    notice::endsList();
}

void ObjectReader::read(Key key, StringSetter setter)
{
    if (Value const* const value = find(key)) {
        notice::reads(Plain::String, *value);
        set<&Ref::asString>(*m_target, setter, *value);
    }
}

void ObjectReader::read(Key key, IntSetter setter)
{
    if (Value const* const value = find(key)) {
        notice::reads(Plain::Int, *value);
        set<&Ref::asInteger>(*m_target, setter, *value);
    }
}

void ObjectReader::read(Key key, DoubleSetter setter)
{
    if (Value const* const value = find(key)) {
        notice::reads(Plain::Double, *value);
        set<&Ref::asFloat>(*m_target, setter, *value);
    }
}

void ObjectReader::read(Key key, BoolSetter setter)
{
    if (Value const* const value = find(key)) {
        notice::reads(Plain::Bool, *value);
        set<&Ref::asBoolean>(*m_target, setter, *value);
    }
}

void ObjectReader::read(Key key, Handover<IObjectBase> handover)
{
    if (Value const* const value = find(key)) {
        attachTo(*m_target, *value, handover);
    }
}

void ObjectReader::readPolymorphic(Key key, Targets targets,
                                   Handover<IObjectBase> const* lastResort)
{
    Value const* const value = find(key);
    if (value == nullptr) {
        return;
    }
    NestedObject const nested(*value);
    std::string const resource = IObjectBase::getServiceAndResourceString(nested.get());
    auto const* const handover = chosen(resource, targets, lastResort);
    notice::chooses(*value, nested.get(), resource, targets, lastResort, handover);
    if (handover != nullptr) {
        attach(nested, *m_target, *handover);
    }
}

void ObjectReader::readList(Key key, StringSetter adder)
{
    eachEntry(key, [&](Value const& entry) {
        notice::reads(Plain::String, entry);
        (m_target->*adder)(Ref(&entry).asString());
    });
}

void ObjectReader::readList(Key key, IntSetter adder)
{
    eachEntry(key, [&](Value const& entry) {
        notice::reads(Plain::Int, entry);
        (m_target->*adder)(Ref(&entry).asInteger());
    });
}

void ObjectReader::readList(Key key, Handover<IObjectBase> handover)
{
    eachEntry(key, [&](Value const& entry) { attachTo(*m_target, entry, handover); });
}

} // namespace zel::kiv::common::internal
