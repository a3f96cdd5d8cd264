#pragma once

#include "json/JsonReader.h"
#include "values/values.h"

#include <memory>
#include <string>

/// The value that a JSON text stands for; null has none.
inline std::unique_ptr<zel::dataformats::data::Value> fromJson(std::string text)
{
    return kiv::json::readDocument("",
                                   [&text](std::span<char> buffer) {
                                       std::size_t const count =
                                           text.copy(buffer.data(), buffer.size());
                                       text.erase(0, count);
                                       return count;
                                   })
        .value;
}
