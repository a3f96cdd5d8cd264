// Counts what one call of each case allocates, or runs a single case for whoever counts its
// instructions.
//   counts ELEMENTS                                prints "workload direction subject allocations
//       bytes", these being what the result holds; subject "buffers" says how many elements have a
//       long key
//   counts ELEMENTS WORKLOAD DIRECTION SUBJECT     calls `measuredCall` once for that case

#include "bench/Cases.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <new>

namespace {

std::size_t allocations = 0;
std::size_t held = 0; ///< bytes that were asked for and are in use

// Each piece has its size in front of it.
constexpr std::size_t front = alignof(std::max_align_t);

} // namespace

void* operator new(std::size_t size)
{
    auto* const piece = static_cast<char*>(std::malloc(front + size));
    if (piece == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(piece, &size, sizeof size);
    ++allocations;
    held += size;
    return piece + front;
}

void operator delete(void* memory) noexcept
{
    if (memory == nullptr) {
        return;
    }
    char* const piece = static_cast<char*>(memory) - front;
    std::size_t size = 0;
    std::memcpy(&size, piece, sizeof size);
    held -= size;
    std::free(piece);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    operator delete(memory);
}

// What is counted is this function with all that it calls; its name is known to the scripts.
extern "C" [[gnu::noinline, gnu::used]] void measuredCall(bench::Case const& each,
                                                          bench::Result& result)
{
    result = each.run();
}

namespace {

std::vector<bench::Case> casesOf(bench::Workload const& workload, std::size_t elements)
{
    std::vector<bench::Case> cases;
    bench::Document const document = bench::document(workload, elements);
    bench::addOwn(cases, workload, document);
    bench::addLimits(cases, workload, document);
#ifdef BENCH_PEERS
    bench::addNlohmann(cases, workload, document);
    bench::addBoostJson(cases, workload, document);
    bench::addProtobuf(cases, workload, document);
#endif
    return cases;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2 && count != 5) {
        std::cerr << "usage: counts ELEMENTS [WORKLOAD DIRECTION SUBJECT]\n";
        return 2;
    }
    bool const single = count == 5;
    bool found = false;
    std::size_t const elements = std::stoul(arguments[1]);
    for (bench::Workload const& workload : bench::workloads) {
        if (single && workload.name != arguments[2]) {
            continue;
        }
        if (!single) {
            std::cout << workload.name << " deserialize buffers "
                      << elementsWithLongKeys(workload, *bench::document(workload, elements))
                      << " 0\n";
        }
        for (bench::Case const& each : casesOf(workload, elements)) {
            if (single && (each.direction != arguments[3] || each.subject != arguments[4])) {
                continue;
            }
            found = true;
            bench::Result result;
            std::size_t const before = allocations;
            std::size_t const heldBefore = held;
            measuredCall(each, result);
            // One allocation is that of the result's own holder.
            std::cout << each.workload << ' ' << each.direction << ' ' << each.subject << ' '
                      << allocations - before - 1 << ' ' << held - heldBefore << '\n';
        }
    }
    if (!found) {
        std::cerr << "counts: there is no such case\n";
        return 1;
    }
    return 0;
}
