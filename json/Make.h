#pragma once

#include "json/ValueNames.h"

#include <memory>
#include <string>
#include <string_view>

/// Values that commands put together to write them as JSON.
namespace kiv::json {

using ValuePointer = std::unique_ptr<data::Value>;

inline ValuePointer text(std::string_view words)
{
    return std::make_unique<data::String>(std::string(words));
}

inline ValuePointer number(int value)
{
    return std::make_unique<data::Integer>(value);
}

inline ValuePointer boolean(bool value)
{
    return std::make_unique<data::Boolean>(value);
}

/// An array of these entries.
template <typename... Entries>
ValuePointer array(Entries... entries)
{
    auto list = std::make_unique<data::Array>();
    (list->pushNew(entries.release()), ...);
    return list;
}

} // namespace kiv::json
