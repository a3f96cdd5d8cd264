#pragma once

#include "Storage.h"
#include "values/PtrMap.h"
#include "values/Value.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zel::common::types {

/// Some entries of an object in one piece of memory, in ascending key order. The blocks of an
/// object are chained, each with greater keys than the one before; a block in a chain is never
/// empty.
///
/// Behind this head lie one tag for each entry, a byte computed from its key, and then the entries.
/// A look-up compares eight tags at a time and looks at an entry only where the tag is right, so it
/// reads hardly any key but the one it is after. The head tells which tags there are, so that a
/// block without the key is mostly passed over at a glance.
class EntryBlock : public Storage {
public:
    using Entry = PtrMap<std::string, zel::dataformats::data::Value>::Entry;

    struct Destroyer {
        void operator()(EntryBlock* block) const noexcept { destroy(block); }
    };
    using Owner = std::unique_ptr<EntryBlock, Destroyer>;

    /// An empty block of twice the capacity of `previous`, up to a limit, or of the least capacity
    /// if that is null. Throws `std::bad_alloc`.
    static Owner createAfter(EntryBlock const* previous);

    /// Frees the block with its keys. The values are not its business.
    static void destroy(EntryBlock* block) noexcept;

    EntryBlock* nextBlock() const noexcept { return static_cast<EntryBlock*>(next); }

    std::size_t size() const noexcept { return m_size; }
    bool full() const noexcept { return m_size == m_capacity; }

    Entry* begin() noexcept { return reinterpret_cast<Entry*>(tags() + m_capacity); }
    Entry* end() noexcept { return begin() + m_size; }
    Entry const* begin() const noexcept { return const_cast<EntryBlock*>(this)->begin(); }
    Entry const* end() const noexcept { return begin() + m_size; }
    Entry& back() noexcept { return *(end() - 1); }

    struct Found {
        Entry const* entry = nullptr;
        EntryBlock const* block = nullptr;
    };

    /// The entry under `key` in the blocks from `first` up to but not including `last`, and the
    /// block it is in. Either may be null.
    static Found find(EntryBlock const* first, EntryBlock const* last,
                      std::string const& key) noexcept;

    /// The first entry with a key that is not less than `key`.
    Entry* lowerBound(std::string_view key) noexcept;

    /// Adds an entry with a copy of `key`, greater than all others, and a null pointer. The block
    /// must not be full. Throws `std::bad_alloc` and then has changed nothing.
    void append(std::string_view key);

    /// Adds an entry with `key` and a null pointer before `place`. The block must not be full.
    Entry& insert(Entry* place, std::string&& key) noexcept;

    /// Moves the greater half of the entries into `other`, which is empty and no smaller.
    void moveHalfTo(EntryBlock& other) noexcept;

private:
    using Tag = std::uint8_t;

    explicit EntryBlock(std::uint16_t capacity) noexcept;

    static Tag tagOf(std::string_view key) noexcept;
    static std::uint64_t bitOf(Tag tag) noexcept { return std::uint64_t{1} << (tag % 64); }

    Entry const* find(Tag tag, std::string_view key) const noexcept;
    Entry const* findMarked(std::size_t index, std::uint64_t marks,
                            std::string_view key) const noexcept;

    Tag* tags() noexcept { return reinterpret_cast<Tag*>(this + 1); }
    Tag const* tags() const noexcept { return reinterpret_cast<Tag const*>(this + 1); }

    std::uint16_t m_size = 0;
    std::uint16_t m_capacity;
    std::uint64_t m_present = 0; ///< the bit of each tag, and perhaps of some that were here before
};

} // namespace zel::common::types
