#pragma once

#include "frame/Api.h"
#include "frame/SerializationType.h"
#include "values/values.h"

#include <memory>
#include <string>
#include <string_view>

namespace zel::kiv::common {

/// Base of every element: one object of a resource, with typed fields that may or may not be set.
///
/// The accessors of all fields are alike. A setter or adder sets its field whatever the value, be
/// it zero, empty or null, and `is…Set` tells that; nothing unsets a field. A getter does not ask
/// whether the field is set. Of a list it gives a copy; adders append to the list.
///
/// An element owns what its fields hold: setters and adders take elements over, getters lend them.
/// A setter does not free the element that it replaces: whoever replaces one keeps its pointer and
/// frees it. A field that holds elements of several classes has a setter and an `is…Set` for each;
/// the latter tells what the getter's result may be cast to.
///
/// An element is not to be used from two threads while one of them
/// writes. No operation throws anything of its own; what allocation or the value classes throw
/// passes through, and what was set before stays set.
class ZEL_KIV_API IObjectBase {
public:
    virtual ~IObjectBase();

    IObjectBase(IObjectBase const&) = delete;
    IObjectBase(IObjectBase&&) = delete;
    IObjectBase& operator=(IObjectBase const&) = delete;
    IObjectBase& operator=(IObjectBase&&) = delete;

    /// The value form of the element: an `Object` of the fields that are set, or, for `Reference`,
    /// a `String` of the uri, empty if it has none. Never null; the caller owns it. A type beyond
    /// the three works as `Full`. No field that is set may hold a null element: the call goes
    /// through it.
    [[nodiscard]] virtual std::unique_ptr<zel::dataformats::data::Value>
    serialize(SerializationType type) const = 0;

    /// Sets the fields that `value`, an `Object`, names, on top of what is set already: texts and
    /// numbers are overwritten, lists grow, a nested element is replaced and not freed. Keys that
    /// the element does not know, and null values, are passed over. Anything but an `Object`
    /// changes nothing.
    ///
    /// `value` stays the caller's and must not change during the call; it may be null if the value
    /// library takes that. Always returns true.
    virtual bool deserialize(zel::dataformats::data::Value const* value) = 0;

    /// Brings a nested value into the form of an object. `object` points at a writable `Object` on
    /// entry.
    ///
    /// A `String` is a uri: a copy of it is stored in `object` under `uri`, and its third part, if
    /// it has one, under `id`. For an `Object`, `object` is made to point at `value` itself.
    /// Returns true for these two; for any other value false, with nothing changed.
    static bool normalizeObject(zel::dataformats::data::Value& value,
                                zel::dataformats::data::Object*& object);

    /// The first two parts of the object's `uri`, "radio/stations" for /radio/stations/7: what
    /// stands between the first character and the second slash after it. Empty if there is no
    /// `uri` or it has fewer than three parts. The first character is passed over whatever it is.
    ///
    /// The value under `uri` must be a `String`; this is not tested.
    static std::string getServiceAndResourceString(zel::dataformats::data::Object const& object);

protected:
    /// Takes the key of the element's class, `presetObject`.
    explicit IObjectBase(std::string_view elementKey);

private:
    std::string m_elementKey;
};

} // namespace zel::kiv::common
