#pragma once

#include <cstdint>

namespace zel::common::types {

/// What the entries of an object and those of an array are kept in has this in common, so that both
/// can wait in one line to be freed.
struct Storage {
    enum class Kind : std::uint8_t { Entries, Pointers };

    explicit Storage(Kind storageKind) noexcept : kind{storageKind} {}

    Storage* next = nullptr;
    Kind kind;
};

} // namespace zel::common::types
