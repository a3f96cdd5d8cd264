#pragma once

#include "json/ValueNames.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

/// Values that commands put together to write them as JSON.
namespace kiv::json {

using ValuePointer = std::unique_ptr<data::Value>;

inline ValuePointer text(std::string_view words)
{
    return std::make_unique<data::String>(std::string(words));
}

template <typename Number>
ValuePointer number(Number value)
{
    return std::make_unique<data::Integer>(static_cast<int>(value));
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

/// An object that is being put together.
class Members {
public:
    Members& with(char const* key, ValuePointer value)
    {
        m_object->setNew(key, value.release());
        return *this;
    }
    Members& with(char const* key, std::string_view words) { return with(key, text(words)); }

    ValuePointer take() { return std::move(m_object); }

private:
    std::unique_ptr<data::Object> m_object = std::make_unique<data::Object>();
};

} // namespace kiv::json
