#include "Allocations.h"

#include <atomic>
#include <cstdlib>
#include <limits>

namespace allocations {
namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> madeCount = 0;
std::atomic<std::size_t> deletedCount = 0;
std::atomic<std::size_t> failing = never;
std::atomic<std::size_t> nextSize = never;

} // namespace

std::size_t made()
{
    return madeCount;
}

std::size_t alive()
{
    return madeCount - deletedCount;
}

void awaitNext()
{
    nextSize = 0;
}

std::size_t sizeOfNext()
{
    return nextSize.exchange(never);
}

void failAfter(std::size_t successes)
{
    failing = madeCount + successes;
}

bool stopFailing()
{
    return failing.exchange(never) == never;
}

} // namespace allocations

void* operator new(std::size_t size)
{
    using namespace allocations;
    std::size_t due = madeCount;
    std::size_t awaited = 0;
    nextSize.compare_exchange_strong(awaited, size);
    if (failing.compare_exchange_strong(due, never)) {
        throw std::bad_alloc{};
    }
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc{};
    }
    ++madeCount;
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory != nullptr) {
        ++allocations::deletedCount;
        std::free(memory);
    }
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
