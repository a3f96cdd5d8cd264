#pragma once

#include "text/Path.h"
#include "tools/lookup/Names.h"

namespace kiv {

/// The choice of a class for the value of a polymorphic field.
struct Dispatch {
    catalogue::Field const& field;
    data::Object const& holder; ///< the object that has the field
    data::Value const& value;   ///< what stands under its key
    std::string const& name;    ///< service and resource of the uri; empty: there is no such uri
    catalogue::Resource const* target; ///< the target of that name, or null if there is none
};

/// Is told what the library meets on its way through a value. What an observer does not care for it
/// leaves out.
class WalkObserver {
public:
    WalkObserver() = default;
    WalkObserver(WalkObserver const&) = delete;
    WalkObserver& operator=(WalkObserver const&) = delete;
    virtual ~WalkObserver() = default;

    /// An object that is read as an element of `resource`. Its fields follow.
    virtual void onElement(Path const& /*path*/, catalogue::Resource const* /*resource*/,
                           data::Object const& /*object*/)
    {
    }

    /// A value that is not null, under a key of `holder` that the element asks for.
    virtual void onField(Path const& /*path*/, catalogue::Field const& /*field*/,
                         data::Object const& /*holder*/, data::Value const& /*value*/)
    {
    }

    /// An entry that is not null, of an array in a list field.
    virtual void onEntry(Path const& /*path*/, catalogue::Field const& /*field*/,
                         data::Array& /*list*/, std::size_t /*index*/, data::Value const& /*value*/)
    {
    }

    /// The value of a polymorphic field, before it is read as what was chosen.
    virtual void onDispatch(Path const& /*path*/, Dispatch const& /*dispatch*/) {}

    /// An object in a polymorphic field whose `uri` is there and no text. The library takes it for
    /// text without looking, so it must not be given this value. `holder` is the object, `path`
    /// leads to the uri, `uri` may be null.
    virtual void onForbiddenUri(Path const& path, data::Object const& holder,
                                data::Value const* uri) = 0;
};

/// Takes the way through a value that the library takes when it deserializes it, without doing so:
/// along the fields of the catalogue, through nested elements and lists, and in polymorphic fields
/// to the target that the uri selects. What no element would read is not looked at.
///
/// Uses stack in proportion to the depth of the value.
class ElementWalk {
public:
    /// `observer` must outlive the walk; what it throws passes through.
    explicit ElementWalk(WalkObserver& observer) : m_observer(observer) {}

    /// Walks one entry of the array that a resource reads; it may be null.
    void walkEntry(catalogue::Resource const& resource, std::size_t index,
                   data::Value const* entry);

private:
    using Map = types::PtrMap<std::string, data::Value>;

    void walkElement(catalogue::Resource const* resource, data::Object const& object);
    void walkField(catalogue::Field const& field, data::Object const& holder, data::Value& value);
    void walkList(catalogue::Field const& field, data::Value& value);
    /// A single nested element, or an entry of a list of them.
    void walkNested(catalogue::Resource const* target, data::Value& value);
    void walkPolymorphic(catalogue::Field const& field, data::Object const& holder,
                         data::Value& value);
    /// Whether the library may look at the object's uri; if not, the observer has been told.
    bool mayReadUri(data::Object const& object);

    WalkObserver& m_observer;
    Path m_path;
    /// Looked up with this one text, so that long keys do not allocate once each.
    std::string m_key;
};

} // namespace kiv
