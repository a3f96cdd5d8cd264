// Counts what one call of each case allocates, or runs a single case for whoever counts its
// instructions.
//   counts ELEMENTS                                prints "workload direction subject allocations"
//       and, as subject "buffers", how many elements have a long key
//   counts ELEMENTS WORKLOAD DIRECTION SUBJECT     calls `measuredCall` once for that case

#include "bench/Cases.h"

#include <cstdlib>
#include <iostream>
#include <new>

namespace {

std::size_t allocations = 0;

} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
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
                      << '\n';
        }
        for (bench::Case const& each : casesOf(workload, elements)) {
            if (single && (each.direction != arguments[3] || each.subject != arguments[4])) {
                continue;
            }
            found = true;
            bench::Result result;
            std::size_t const before = allocations;
            measuredCall(each, result);
            // One allocation is that of the result's own holder.
            std::cout << each.workload << ' ' << each.direction << ' ' << each.subject << ' '
                      << allocations - before - 1 << '\n';
        }
    }
    if (!found) {
        std::cerr << "counts: there is no such case\n";
        return 1;
    }
    return 0;
}
