#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "testing/detail/JsonVisitor.h"
#include "values/values.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string>

namespace zel::kiv::testing {

/// All in one line without blanks, or each value on a line of its own.
enum class Layout { Compact, Indented };

/// A value as JSON, null for a null pointer. A number that is not finite and a blob are written in
/// words that are no JSON.
inline std::string toJson(dataformats::data::Value const* value, Layout layout = Layout::Compact)
{
    rapidjson::StringBuffer text;
    if (layout == Layout::Compact) {
        rapidjson::Writer<rapidjson::StringBuffer> writer(text);
        detail::JsonVisitor<decltype(writer)>(writer).write(value);
    } else {
        rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(text);
        detail::JsonVisitor<decltype(writer)>(writer).write(value);
    }
    return {text.GetString(), text.GetSize()};
}

inline std::string toJson(dataformats::data::Value const& value, Layout layout = Layout::Compact)
{
    return toJson(&value, layout);
}

/// An element in full.
inline std::string toJson(common::IObjectBase const& element, Layout layout = Layout::Compact)
{
    return toJson(element.serialize(common::SerializationType::Full).get(), layout);
}

/// A resource with its elements in full. No slot may be empty.
inline std::string toJson(common::IResourceBase const& resource, Layout layout = Layout::Compact)
{
    return toJson(resource.serialize().get(), layout);
}

} // namespace zel::kiv::testing
