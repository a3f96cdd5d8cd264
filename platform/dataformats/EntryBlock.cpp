#include "EntryBlock.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>
#include <utility>

namespace zel::common::types {
namespace {

using TagWord = std::uint64_t;

// Both are multiples of the tags in a word.
constexpr int minCapacity = 8;
constexpr int maxCapacity = 64;

constexpr std::size_t tagsPerWord = sizeof(TagWord);
constexpr TagWord lowBits = 0x0101010101010101;
constexpr TagWord highBits = 0x8080808080808080;

static_assert(std::endian::native == std::endian::little, "the first tag is the lowest byte");

/// The high bit of each byte of `word` that is 0. A byte above such a one may be marked by mistake,
/// never the other way round.
TagWord zeros(TagWord word) noexcept
{
    return (word - lowBits) & ~word & highBits;
}

} // namespace

EntryBlock::EntryBlock(std::uint16_t capacity) noexcept
    : Storage{Kind::Entries}, m_capacity{capacity}
{
    std::memset(tags(), 0, capacity);
}

EntryBlock::Owner EntryBlock::createAfter(EntryBlock const* previous)
{
    auto const capacity = static_cast<std::uint16_t>(
        previous == nullptr ? minCapacity : std::min(2 * previous->m_capacity, maxCapacity));
    static_assert(sizeof(EntryBlock) % alignof(Entry) == 0 && tagsPerWord % alignof(Entry) == 0);
    void* memory = ::operator new(sizeof(EntryBlock) + capacity * (sizeof(Tag) + sizeof(Entry)));
    return Owner{::new (memory) EntryBlock{capacity}};
}

void EntryBlock::destroy(EntryBlock* block) noexcept
{
    std::destroy(block->begin(), block->end());
    ::operator delete(block);
}

// Length, first, middle and last character tell the keys of an object apart about as well as a byte
// can; the factors are odd, so that no bit of them is lost.
EntryBlock::Tag EntryBlock::tagOf(std::string_view key) noexcept
{
    if (key.empty()) {
        return 0;
    }
    auto const at = [&](std::size_t index) -> unsigned {
        return static_cast<unsigned char>(key[index]);
    };
    std::size_t const size = key.size();
    auto const length = static_cast<unsigned>(size);
    return static_cast<Tag>(length * 67 + at(0) * 105 + at(size / 2) * 53 + at(size - 1) * 3);
}

EntryBlock::Found EntryBlock::find(EntryBlock const* first, EntryBlock const* last,
                                   std::string const& key) noexcept
{
    TagWord const wanted = lowBits * tagOf(key);
    for (EntryBlock const* block = first; block != last; block = block->nextBlock()) {
        for (std::size_t index = 0; index < block->m_size; index += tagsPerWord) {
            TagWord word = 0;
            std::memcpy(&word, block->tags() + index, sizeof word);
            TagWord const marks = zeros(word ^ wanted);
            if (marks == 0) {
                continue;
            }
            if (Entry const* const entry = block->findMarked(index, marks, key)) {
                return {entry, block};
            }
        }
    }
    return {};
}

/// The entry under `key` among those that `marks` has a bit in their byte for, the first byte being
/// that of the entry at `index`; or null.
EntryBlock::Entry const* EntryBlock::findMarked(std::size_t index, std::uint64_t marks,
                                                std::string const& key) const noexcept
{
    for (; marks != 0; marks &= marks - 1) {
        Entry const* const entry = begin() + index + std::countr_zero(marks) / 8;
        if (entry < end() && entry->first == key) {
            return entry;
        }
    }
    return nullptr;
}

EntryBlock::Entry* EntryBlock::lowerBound(std::string_view key) noexcept
{
    return std::lower_bound(begin(), end(), key, [](Entry const& entry, std::string_view wanted) {
        return entry.first < wanted;
    });
}

void EntryBlock::append(std::string_view key)
{
    ::new (end()) Entry{std::string{key}, nullptr};
    tags()[m_size++] = tagOf(key);
}

EntryBlock::Entry& EntryBlock::insert(Entry* place, std::string&& key) noexcept
{
    Tag* const tag = tags() + (place - begin());
    std::copy_backward(tag, tags() + m_size, tags() + m_size + 1);
    *tag = tagOf(key);

    ::new (end()) Entry{{}, nullptr};
    ++m_size;
    std::move_backward(place, end() - 1, end());
    *place = Entry{std::move(key), nullptr};
    return *place;
}

void EntryBlock::moveHalfTo(EntryBlock& other) noexcept
{
    std::size_t const kept = m_size / 2U;
    std::copy(tags() + kept, tags() + m_size, other.tags());
    std::uninitialized_move(begin() + kept, end(), other.begin());
    other.m_size = static_cast<std::uint16_t>(m_size - kept);
    std::destroy(begin() + kept, end());
    m_size = static_cast<std::uint16_t>(kept);
}

} // namespace zel::common::types
