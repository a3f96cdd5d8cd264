// Times each case with Google Benchmark. All rounds of all cases are mixed in one process, and the
// heap is brought together before each run: a scattered free list alone can double a time.

#include "bench/Cases.h"

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

using bench::Case;

/// Seconds that this thread has worked; what else the machine does is not counted.
double worked()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Keeps freed memory in the process, so that no run pays for getting it from the system.
void keepMemory()
{
    mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TOP_PAD, 64 * 1024 * 1024);
}

/// Joins the pieces of freed memory, which is what a request for a large piece begins with.
void joinFreedMemory()
{
    std::free(std::malloc(1024 * 1024));
}

void measure(benchmark::State& state, Case const& each)
{
    // Small documents are read several times in one run, so that the clock does not count.
    std::size_t const times = std::max<std::size_t>(1, 1000 / each.elements);
    std::vector<bench::Result> results(times);
    auto const run = [&] {
        joinFreedMemory();
        double const start = worked();
        for (bench::Result& result : results) {
            result = each.run();
        }
        double const taken = worked() - start;
        for (bench::Result& result : results) {
            result.reset();
        }
        return taken;
    };
    run();
    for ([[maybe_unused]] auto round : state) {
        state.SetIterationTime(run());
    }
    state.counters["elements"] = static_cast<double>(times * each.elements);
}

std::vector<Case> casesOf(bench::Workload const& workload)
{
    std::vector<Case> cases;
    bench::Document const document = bench::document(workload, 1000);
    bench::addOwn(cases, workload, document);
    bench::addLimits(cases, workload, document);
    bench::addNlohmann(cases, workload, document);
    bench::addBoostJson(cases, workload, document);
    bench::addProtobuf(cases, workload, document);
    return cases;
}

/// The cost per element must not depend on how many there are. The largest are of the smallest
/// kind, since all of it is in memory at once.
void addSizes(std::vector<Case>& cases)
{
    for (std::size_t const elements : {10U, 1'000U, 100'000U, 1'000'000U}) {
        bench::Workload const& workload = bench::workloads[2];
        std::size_t const first = cases.size();
        bench::addOwn(cases, workload, bench::document(workload, elements));
        for (std::size_t i = first; i < cases.size(); ++i) {
            cases[i].workload = "size" + std::to_string(elements);
        }
    }
}

} // namespace

int main(int count, char** arguments)
{
    keepMemory();
    std::vector<char*> all(arguments, arguments + count);
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    all.insert(all.begin() + 1, interleave.data());
    count = static_cast<int>(all.size());
    benchmark::Initialize(&count, all.data());
    if (benchmark::ReportUnrecognizedArguments(count, all.data())) {
        return 2;
    }
    std::vector<Case> cases;
    for (bench::Workload const& workload : bench::workloads) {
        for (Case& each : casesOf(workload)) {
            cases.push_back(std::move(each));
        }
    }
    addSizes(cases);
    for (Case const& each : cases) {
        std::string const name = each.workload + '/' + each.direction + '/' + each.subject;
        benchmark::RegisterBenchmark(name.c_str(), [&each](benchmark::State& state) {
            measure(state, each);
        })->UseManualTime();
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
