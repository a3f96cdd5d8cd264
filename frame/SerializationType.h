#pragma once

namespace zel::kiv::common {

/// How deep the value form of an element goes.
enum class SerializationType : int {
    Full = 0,      ///< every set field, nested elements in full, all the way down
    Reference = 1, ///< nothing but the uri
    Shallow = 2,   ///< every set field, nested elements as their uri
};

} // namespace zel::kiv::common
