#pragma once

#include <cstdint>

namespace zel::dataformats::data {

/// The type codes that `Value::getType` returns, to be compared as they stand:
/// `value.getType() == ValueType::String`. The enumeration sits in a structure because its names
/// are also those of the classes.
struct ValueType {
    enum Code : std::int32_t {
        Null = 0,
        Boolean = 1,
        Integer = 2,
        Float = 3,
        Blob = 4,
        String = 5,
        Array = 7,
        Object = 8,
    };
};

} // namespace zel::dataformats::data
