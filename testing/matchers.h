#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "testing/difference.h"
#include "testing/fromJson.h"
#include "testing/toJson.h"
#include "values/values.h"

#include <gmock/gmock.h>

#include <memory>
#include <ostream>
#include <string>

/// By these GoogleTest shows values, elements and resources as JSON. It looks for them where the
/// classes are.
namespace zel::dataformats::data {

inline std::ostream& operator<<(std::ostream& stream, Value const& value)
{
    return stream << kiv::testing::toJson(value);
}

} // namespace zel::dataformats::data

namespace zel::kiv::common {

inline std::ostream& operator<<(std::ostream& stream, IObjectBase const& element)
{
    return stream << testing::toJson(element);
}

inline std::ostream& operator<<(std::ostream& stream, IResourceBase const& resource)
{
    return stream << testing::toJson(resource);
}

} // namespace zel::kiv::common

namespace zel::kiv::testing {

namespace detail {

/// A value, and whoever owns it if nobody else does.
struct Subject {
    std::unique_ptr<dataformats::data::Value> owner;
    dataformats::data::Value const* value;
};

inline Subject subject(dataformats::data::Value const* value)
{
    return {nullptr, value};
}

inline Subject subject(dataformats::data::Value const& value)
{
    return {nullptr, &value};
}

inline Subject subject(std::unique_ptr<dataformats::data::Value> const& value)
{
    return {nullptr, value.get()};
}

inline Subject subject(common::IObjectBase const& element)
{
    auto value = element.serialize(common::SerializationType::Full);
    auto const* const seen = value.get();
    return {std::move(value), seen};
}

inline Subject subject(common::IResourceBase const& resource)
{
    auto value = resource.serialize();
    auto const* const seen = value.get();
    return {std::move(value), seen};
}

} // namespace detail

/// Matches what has the same values as the JSON text: a value, a pointer to one, an element (in
/// full) or a resource. The order of keys is of no account, everything else is. A mismatch names
/// each place where they differ. Throws `BadJson` on a text that is none.
MATCHER_P(MatchesJson, json, (negation ? "is not " : "is ") + std::string(json))
{
    std::string const words = difference(fromJson(json).get(), detail::subject(arg).value);
    *result_listener << words;
    return words.empty();
}

} // namespace zel::kiv::testing
