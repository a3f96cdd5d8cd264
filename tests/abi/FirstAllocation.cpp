#include "tests/abi/FirstAllocation.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

bool isWatching = false;
std::size_t firstSize = 0;

} // namespace

void firstAllocation::watch()
{
    isWatching = true;
}

std::size_t firstAllocation::size()
{
    isWatching = false;
    return std::exchange(firstSize, 0);
}

void* operator new(std::size_t size)
{
    if (std::exchange(isWatching, false)) {
        firstSize = size;
    }
    if (void* const block = std::malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    std::free(block);
}
