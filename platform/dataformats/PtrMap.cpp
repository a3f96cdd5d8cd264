#include "values/PtrMap.h"

#include "EntryBlock.h"
#include "EntryDirectory.h"

#include <utility>

namespace zel::common::types {

template <typename K, typename V>
typename PtrMap<K, V>::const_iterator& PtrMap<K, V>::const_iterator::operator++() noexcept
{
    ++m_entry;
    if (m_entry == m_block->end()) {
        m_block = m_block->nextBlock();
        m_entry = m_block == nullptr ? nullptr : m_block->begin();
    }
    return *this;
}

template <typename K, typename V>
typename PtrMap<K, V>::const_iterator PtrMap<K, V>::find(K const& key) const noexcept
{
    EntryBlock const* first = m_first;
    EntryBlock const* last = nullptr;
    if (m_directory != nullptr) {
        first = m_directory->blockFor(key);
        last = first->nextBlock();
    }
    auto const found = EntryBlock::find(first, last, key);
    return {found.entry, found.block};
}

template <typename K, typename V>
typename PtrMap<K, V>::const_iterator PtrMap<K, V>::begin() const noexcept
{
    return m_first == nullptr ? end() : const_iterator{m_first->begin(), m_first};
}

template <typename K, typename V>
std::size_t PtrMap<K, V>::size() const noexcept
{
    if (m_directory != nullptr) {
        return m_directory->size;
    }
    std::size_t size = 0;
    for (EntryBlock const* block = m_first; block != nullptr; block = block->nextBlock()) {
        size += block->size();
    }
    return size;
}

/// The pointer under `key`, which is added with a null pointer if it is new. Throws
/// `std::bad_alloc` and then has changed nothing.
template <typename K, typename V>
void*& PtrMap<K, V>::slot(std::string_view key)
{
    if (m_last == nullptr || m_last->back().first.compare(key) < 0) {
        return append(key);
    }
    return insert(key);
}

/// Hands over the blocks, if there are any, with what they hold, and leaves the map empty.
template <typename K, typename V>
EntryBlock* PtrMap<K, V>::detach() noexcept
{
    delete std::exchange(m_directory, nullptr);
    m_last = nullptr;
    return std::exchange(m_first, nullptr);
}

/// Adds a key greater than all others. A full block stays as it is and gets a larger one behind it,
/// so that no key is moved as long as keys arrive in ascending order.
template <typename K, typename V>
void*& PtrMap<K, V>::append(std::string_view key)
{
    if (m_last == nullptr || m_last->full()) {
        reserveBlock();
        EntryBlock::Owner block = EntryBlock::createAfter(m_last);
        block->append(key);
        addBlockAfter(m_last, block.release());
    } else {
        m_last->append(key);
    }
    countEntry();
    return m_last->back().second;
}

/// Finds a key that is not greater than all others, or adds it.
template <typename K, typename V>
void*& PtrMap<K, V>::insert(std::string_view key)
{
    EntryBlock* block = blockFor(key);
    Entry* place = block->lowerBound(key);
    if (place != block->end() && place->first == key) {
        return place->second;
    }
    K copy{key};
    if (block->full()) {
        split(block);
        block = blockFor(key);
        place = block->lowerBound(key);
    }
    countEntry();
    return block->insert(place, std::move(copy)).second;
}

/// The block that holds `key` if any does. There must be a block.
template <typename K, typename V>
EntryBlock* PtrMap<K, V>::blockFor(std::string_view key) const noexcept
{
    if (m_directory != nullptr) {
        return m_directory->blockFor(key);
    }
    EntryBlock* block = m_first;
    while (block->nextBlock() != nullptr && !(key < block->nextBlock()->begin()->first)) {
        block = block->nextBlock();
    }
    return block;
}

template <typename K, typename V>
void PtrMap<K, V>::split(EntryBlock* block)
{
    reserveBlock();
    EntryBlock::Owner half = EntryBlock::createAfter(block);
    block->moveHalfTo(*half);
    addBlockAfter(block, half.release());
}

/// Does what can fail about adding a block.
template <typename K, typename V>
void PtrMap<K, V>::reserveBlock()
{
    if (m_directory != nullptr) {
        m_directory->reserve();
        return;
    }
    std::size_t blocks = 0;
    for (EntryBlock const* block = m_first; block != nullptr; block = block->nextBlock()) {
        ++blocks;
    }
    if (blocks == EntryDirectory::worthwhile) {
        m_directory = new EntryDirectory{m_first};
    }
}

template <typename K, typename V>
void PtrMap<K, V>::addBlockAfter(EntryBlock* previous, EntryBlock* block) noexcept
{
    EntryBlock* const after = previous == nullptr ? nullptr : previous->nextBlock();
    block->next = after;
    if (previous == nullptr) {
        m_first = block;
    } else {
        previous->next = block;
    }
    if (after == nullptr) {
        m_last = block;
    }
    if (m_directory != nullptr) {
        m_directory->add(block);
    }
}

template <typename K, typename V>
void PtrMap<K, V>::countEntry() noexcept
{
    if (m_directory != nullptr) {
        ++m_directory->size;
    }
}

template class PtrMap<std::string, zel::dataformats::data::Value>;

} // namespace zel::common::types
