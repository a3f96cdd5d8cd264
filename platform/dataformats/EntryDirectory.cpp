#include "EntryDirectory.h"

#include <algorithm>

namespace zel::common::types {
namespace {

bool isBefore(std::string_view key, EntryBlock const* block) noexcept
{
    return key < block->begin()->first;
}

} // namespace

EntryDirectory::EntryDirectory(EntryBlock* first)
{
    m_blocks.reserve(2 * worthwhile);
    for (EntryBlock* block = first; block != nullptr; block = block->nextBlock()) {
        m_blocks.push_back(block);
        size += block->size();
    }
}

EntryBlock* EntryDirectory::blockFor(std::string_view key) const noexcept
{
    auto const after = std::upper_bound(m_blocks.begin(), m_blocks.end(), key, isBefore);
    return after == m_blocks.begin() ? *after : *std::prev(after);
}

void EntryDirectory::reserve()
{
    if (m_blocks.size() == m_blocks.capacity()) {
        m_blocks.reserve(2 * m_blocks.capacity());
    }
}

void EntryDirectory::add(EntryBlock* block) noexcept
{
    std::string_view const key = block->begin()->first;
    m_blocks.insert(std::upper_bound(m_blocks.begin(), m_blocks.end(), key, isBefore), block);
}

} // namespace zel::common::types
