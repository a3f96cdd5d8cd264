#pragma once

#include "Storage.h"
#include "values/Value.h"

#include <cstddef>
#include <new>

namespace zel::common::types {

/// The memory of an array: this head, then room for the pointers.
class PointerBlock : public Storage {
public:
    using Value = zel::dataformats::data::Value;

    /// Throws `std::bad_alloc`.
    static PointerBlock* create(std::size_t capacity)
    {
        void* memory = ::operator new(sizeof(PointerBlock) + capacity * sizeof(Value*));
        return ::new (memory) PointerBlock;
    }

    static void destroy(PointerBlock* block) noexcept { ::operator delete(block); }

    /// The block whose pointers these are.
    static PointerBlock* of(Value** pointers) noexcept
    {
        return reinterpret_cast<PointerBlock*>(pointers) - 1;
    }

    Value** pointers() noexcept { return reinterpret_cast<Value**>(this + 1); }

    // The size is known here only once the array has let go of the block.

    void setSize(std::size_t size) noexcept { m_size = size; }
    Value** begin() noexcept { return pointers(); }
    Value** end() noexcept { return pointers() + m_size; }

private:
    PointerBlock() noexcept : Storage{Kind::Pointers} {}

    std::size_t m_size = 0;
};

} // namespace zel::common::types
