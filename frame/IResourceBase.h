#pragma once

#include "frame/Api.h"
#include "values/values.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace zel::kiv::common {

/// Base of every resource: a collection of one kind of element, which it owns.
///
/// A resource is not to be used from two threads while one of them writes. No operation throws
/// anything of its own; what allocation or the value classes throw passes through, and the elements
/// that were added before stay.
class ZEL_KIV_API IResourceBase {
public:
    virtual ~IResourceBase();

    IResourceBase(IResourceBase const&) = delete;
    IResourceBase(IResourceBase&&) = delete;
    IResourceBase& operator=(IResourceBase const&) = delete;
    IResourceBase& operator=(IResourceBase&&) = delete;

    /// An `Array` of the elements in slot order, each in full. Never null; the caller owns it. No
    /// slot may be null, be it by `extractElement` or by adding null: the call goes through it.
    [[nodiscard]] virtual std::unique_ptr<zel::dataformats::data::Value> serialize() const = 0;

    /// Appends one element for each entry of `value`, an `Array`; an entry that is no `Object`
    /// makes an empty element. Anything but an `Array` changes nothing.
    ///
    /// `value` stays the caller's and must not change during the call; it may be null, or hold null
    /// entries, if the value library takes that. Always returns true.
    virtual bool deserialize(zel::dataformats::data::Value const* value) = 0;

    /// The number of slots, those that were emptied by `extractElement` included.
    [[nodiscard]] virtual std::size_t getNumberOfElements() const = 0;

protected:
    /// Takes the key of the resource's class, `presets`.
    explicit IResourceBase(std::string_view resourceKey);

private:
    std::string m_resourceKey;
};

} // namespace zel::kiv::common
