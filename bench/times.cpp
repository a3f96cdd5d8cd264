// Times each case with Google Benchmark. All rounds of all cases are mixed in one process, and the
// heap is brought together between them: a scattered free list alone can double a time.

#include "bench/Cases.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <malloc.h>

namespace {

using bench::Case;

void measure(benchmark::State& state, Case const& each)
{
    malloc_trim(0);
    for ([[maybe_unused]] auto round : state) {
        auto const start = std::chrono::steady_clock::now();
        bench::Result result = each.run();
        std::chrono::duration<double> const taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
        result.reset();
    }
    state.counters["elements"] = static_cast<double>(each.elements);
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
