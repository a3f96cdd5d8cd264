#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "frame/internal/Handover.h"
#include "values/values.h"

/// What visits values for all classes. A class says how its fields are read, or to whom its
/// elements are given; the visitors are compiled once.
namespace zel::kiv::common::internal {

class ObjectReader;

/// Fills an element from the value, which may be null if the value library takes that. Of an object
/// the fields are read by `readFields`; any other value is noted as a fault. Always true, as the
/// result of `deserialize`, which so ends in a jump and takes no stack.
bool deserializeElement(IObjectBase& target, zel::dataformats::data::Value const* value,
                        void (*readFields)(ObjectReader& fields));

/// Fills a resource from the value, which may be null if the value library takes that. Of an array
/// an element is made of each entry, null entries included, and handed over; any other value is
/// noted as a fault. So is `failure` if an element cannot be read, which ends it. Always true.
bool deserializeResource(IResourceBase& target, zel::dataformats::data::Value const* value,
                         Handover<IResourceBase> handover, char const* failure);

/// The same, the elements being given to the target's adder.
template <auto adder>
bool deserializeResource(IResourceBase& target, zel::dataformats::data::Value const* value,
                         char const* failure)
{
    return deserializeResource(target, value, HandoverTo<IResourceBase, adder>::get(), failure);
}

} // namespace zel::kiv::common::internal
