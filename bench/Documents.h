#pragma once

#include "catalogue/Catalogue.h"
#include "values/values.h"

#include <memory>
#include <string_view>
#include <vector>

namespace bench {

/// One sort of document to measure with.
struct Workload {
    std::string_view name;     ///< as it stands in the results
    std::string_view resource; ///< `radio::Stations`
};

/// - stations: 30 of 54 fields, among them two bands of two ranges each and an audio segment
/// - locations: all plain fields and 20 nested elements
/// - calls: all fields of the smallest element
/// - contexts: all fields of an element with many nested ones, down to the third level
inline constexpr Workload workloads[] = {{"stations", "radio::Stations"},
                                         {"locations", "places::Locations"},
                                         {"calls", "basicphonecall::Calls"},
                                         {"contexts", "guidance::DrivingContexts"}};

zel::kiv::catalogue::Resource const& resourceOf(Workload const& workload);

/// The value form of a resource with that many elements. The same for every run.
std::unique_ptr<zel::dataformats::data::Array> document(Workload const& workload,
                                                        std::size_t elements);

/// How many elements of a document, the nested ones included, are of a class with a key that a
/// string does not hold in place.
std::size_t elementsWithLongKeys(Workload const& workload,
                                 zel::dataformats::data::Array const& document);

} // namespace bench
