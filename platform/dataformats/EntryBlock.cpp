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

template <typename Word>
Word wordAt(void const* place) noexcept
{
    Word word = 0;
    std::memcpy(&word, place, sizeof word);
    return word;
}

/// Whether two texts of `size` bytes begin and end with the same words, which may overlap.
template <typename Word>
bool sameEnds(char const* left, char const* right, std::size_t size) noexcept
{
    std::size_t const last = size - sizeof(Word);
    return wordAt<Word>(left) == wordAt<Word>(right) &&
           wordAt<Word>(left + last) == wordAt<Word>(right + last);
}

/// Keys are so short that a call would take longer than the comparison.
bool isSame(std::string_view left, std::string_view right) noexcept
{
    std::size_t size = left.size();
    if (size != right.size()) {
        return false;
    }
    char const* mine = left.data();
    char const* theirs = right.data();
    for (; size > 2 * sizeof(std::uint64_t); size -= sizeof(std::uint64_t)) {
        if (wordAt<std::uint64_t>(mine) != wordAt<std::uint64_t>(theirs)) {
            return false;
        }
        mine += sizeof(std::uint64_t);
        theirs += sizeof(std::uint64_t);
    }
    if (size >= sizeof(std::uint64_t)) {
        return sameEnds<std::uint64_t>(mine, theirs, size);
    }
    if (size >= sizeof(std::uint32_t)) {
        return sameEnds<std::uint32_t>(mine, theirs, size);
    }
    if (size >= sizeof(std::uint16_t)) {
        return sameEnds<std::uint16_t>(mine, theirs, size);
    }
    return size == 0 || *mine == *theirs;
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
    Tag const tag = tagOf(key);
    std::uint64_t const bit = bitOf(tag);
    for (EntryBlock const* block = first; block != last; block = block->nextBlock()) {
        if ((block->m_present & bit) == 0) {
            continue;
        }
        if (Entry const* const entry = block->find(tag, key)) {
            return {entry, block};
        }
    }
    return {};
}

inline EntryBlock::Entry const* EntryBlock::find(Tag tag, std::string_view key) const noexcept
{
    TagWord const wanted = lowBits * tag;
    for (std::size_t index = 0; index < m_size; index += tagsPerWord) {
        TagWord const marks = zeros(wordAt<TagWord>(tags() + index) ^ wanted);
        if (marks == 0) {
            continue;
        }
        if (Entry const* const entry = findMarked(index, marks, key)) {
            return entry;
        }
    }
    return nullptr;
}

/// The entry under `key` among those that `marks` has a bit in their byte for, the first byte being
/// that of the entry at `index`; or null.
inline EntryBlock::Entry const* EntryBlock::findMarked(std::size_t index, std::uint64_t marks,
                                                       std::string_view key) const noexcept
{
    for (; marks != 0; marks &= marks - 1) {
        Entry const* const entry = begin() + index + std::countr_zero(marks) / 8;
        if (entry < end() && isSame(entry->first, key)) {
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
    Tag const tag = tagOf(key);
    tags()[m_size++] = tag;
    m_present |= bitOf(tag);
}

EntryBlock::Entry& EntryBlock::insert(Entry* place, std::string&& key) noexcept
{
    Tag const tag = tagOf(key);
    Tag* const tagPlace = tags() + (place - begin());
    std::copy_backward(tagPlace, tags() + m_size, tags() + m_size + 1);
    *tagPlace = tag;
    m_present |= bitOf(tag);

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
    other.m_present = m_present; // what is too much costs a look, no more
    std::uninitialized_move(begin() + kept, end(), other.begin());
    other.m_size = static_cast<std::uint16_t>(m_size - kept);
    std::destroy(begin() + kept, end());
    m_size = static_cast<std::uint16_t>(kept);
}

} // namespace zel::common::types
