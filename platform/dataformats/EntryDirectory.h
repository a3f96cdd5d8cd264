#pragma once

#include "EntryBlock.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace zel::common::types {

/// The blocks of an object with so many that walking along the chain would take too long.
class EntryDirectory {
public:
    /// How many blocks an object has before it gets a directory.
    static constexpr std::size_t worthwhile = 8;

    /// Lists the blocks of the chain. Throws `std::bad_alloc`.
    explicit EntryDirectory(EntryBlock* first);

    /// The number of entries in all blocks, kept up by whoever adds one.
    std::size_t size = 0;

    /// The block that holds `key` if any does: the last one that begins with it or a lesser key.
    EntryBlock* blockFor(std::string_view key) const noexcept;

    /// Makes room for one more block. Throws `std::bad_alloc`.
    void reserve();

    /// Adds `block`, already in the chain, for which there is room.
    void add(EntryBlock* block) noexcept;

private:
    std::vector<EntryBlock*> m_blocks;
};

} // namespace zel::common::types
