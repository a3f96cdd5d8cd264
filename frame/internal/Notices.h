#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "frame/internal/Handover.h"
#include "values/values.h"

#include <cstddef>
#include <string>
#include <string_view>

/// What the frame comes across while it reads and writes, told as facts. The frame is compiled
/// twice. In the shipped library all of this is nothing; with `ZEL_KIV_NOTICES` the functions are
/// those of `diagnostics/`. Only sources of the frame include this, so that the classes are
/// compiled once for both.
namespace zel::kiv::common::internal {

/// What a plain field is.
enum class Plain { String, Int, Double, Bool };

namespace notice {

using Map = zel::common::types::PtrMap<std::string, zel::dataformats::data::Value>;
using zel::dataformats::data::Object;
using zel::dataformats::data::Value;

#ifdef ZEL_KIV_NOTICES

/// An element or resource is read from a value for as long as this lives.
class Reading {
public:
    Reading(IObjectBase const& element, Value const* value);
    Reading(IResourceBase const& resource, Value const* value);
    Reading(Reading const&) = delete;
    Reading(Reading&&) = delete;
    Reading& operator=(Reading const&) = delete;
    Reading& operator=(Reading&&) = delete;
    ~Reading();

    /// It was read to the end.
    void done() const;

private:
    bool m_isHeard;
};

/// The value is an object, the fields of the element follow.
void readsFields(Map const& map);
/// That key is looked up, and what follows is about it.
void asks(std::string_view key);
/// The key is there, with a null.
void passesNull();
/// A value is read into a plain field, or into a list of them.
void reads(Plain kind, Value const& value);
/// A list field has a value that is no array and is passed over.
void passesNoList(Value const& value);
/// An array is read into a list field or a resource: first this, then each entry.
void readsList(Value const* list);
void readsEntry(Value const* entry);
/// The last entry has been read.
void endsList();
/// A value is read as an element in a field or list. `object` is what was made of it.
void readsNested(Value const& value, Object const& object);
/// A value of a polymorphic field names `resource`, which `target` takes; null: nobody.
void chooses(Value const& value, Object const& object, std::string_view resource,
             Targets const& targets, Handover<IObjectBase> const* lastResort,
             Handover<IObjectBase> const* target);
/// Whether a uri that is no text is passed over, which it never is in the shipped library.
bool passesUri(Object const& object, Value const* uri);

/// An element in a field or list is written for as long as this lives. It may be null, which ends
/// badly.
class Writing {
public:
    Writing(char const* key, IObjectBase const* element);
    explicit Writing(IObjectBase const* entry);
    Writing(Writing const&) = delete;
    Writing(Writing&&) = delete;
    Writing& operator=(Writing const&) = delete;
    Writing& operator=(Writing&&) = delete;
    ~Writing();

private:
    bool m_isHeard;
};

/// An element or resource is written, or the list under a key of the element that is.
void writes(IObjectBase const& element, SerializationType type);
void writes(IResourceBase const& resource);
void writesList(char const* key);
/// An element is written as a reference alone.
void writesReference(IObjectBase const& element, std::string const& uri, Value const& result);
/// The value of an element is complete, or the array of a resource or of a list.
void wroteElement(Value const& result);
void wroteArray(Value const& result);

#else

struct Reading {
    Reading(IObjectBase const& /*element*/, Value const* /*value*/) {}
    Reading(IResourceBase const& /*resource*/, Value const* /*value*/) {}
    void done() const {}
};

inline void readsFields(Map const& /*map*/) {}
inline void asks(std::string_view /*key*/) {}
inline void passesNull() {}
inline void reads(Plain /*kind*/, Value const& /*value*/) {}
inline void passesNoList(Value const& /*value*/) {}
inline void readsList(Value const* /*list*/) {}
inline void readsEntry(Value const* /*entry*/) {}
inline void endsList() {}
inline void readsNested(Value const& /*value*/, Object const& /*object*/) {}
inline void chooses(Value const& /*value*/, Object const& /*object*/, std::string_view /*resource*/,
                    Targets const& /*targets*/, Handover<IObjectBase> const* /*lastResort*/,
                    Handover<IObjectBase> const* /*target*/)
{
}
constexpr bool passesUri(Object const& /*object*/, Value const* /*uri*/)
{
    return false;
}

struct Writing {
    Writing(char const* /*key*/, IObjectBase const* /*element*/) {}
    explicit Writing(IObjectBase const* /*entry*/) {}
};

inline void writes(IObjectBase const& /*element*/, SerializationType /*type*/) {}
inline void writes(IResourceBase const& /*resource*/) {}
inline void writesList(char const* /*key*/) {}
inline void writesReference(IObjectBase const& /*element*/, std::string const& /*uri*/,
                            Value const& /*result*/)
{
}
inline void wroteElement(Value const& /*result*/) {}
inline void wroteArray(Value const& /*result*/) {}

#endif

} // namespace notice

} // namespace zel::kiv::common::internal
