#include "values/PtrVector.h"

#include "PointerBlock.h"

#include <algorithm>
#include <utility>

namespace zel::common::types {

namespace {

constexpr std::size_t firstCapacity = 4;

} // namespace

template <typename V>
void PtrVector<V>::reserve(std::size_t capacity)
{
    if (capacity <= m_capacity) {
        return;
    }
    V** const grown = PointerBlock::create(capacity)->pointers();
    std::copy(begin(), end(), grown);
    if (m_entries != nullptr) {
        PointerBlock::destroy(PointerBlock::of(m_entries));
    }
    m_entries = grown;
    m_capacity = capacity;
}

template <typename V>
void PtrVector<V>::push(V* value)
{
    if (m_size == m_capacity) {
        reserve(std::max(firstCapacity, 2 * m_capacity));
    }
    m_entries[m_size++] = value;
}

/// Hands over the memory, if there is any, with what it holds, and leaves the vector empty.
template <typename V>
PointerBlock* PtrVector<V>::detach() noexcept
{
    if (m_entries == nullptr) {
        return nullptr;
    }
    PointerBlock* const block = PointerBlock::of(std::exchange(m_entries, nullptr));
    block->setSize(std::exchange(m_size, 0));
    m_capacity = 0;
    return block;
}

template class PtrVector<zel::dataformats::data::Value>;

} // namespace zel::common::types
