// Times each case with Google Benchmark. All rounds of all cases are mixed in one process, and each
// run has a fresh copy of it.

#include "bench/Cases.h"

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <stdexcept>
#include <system_error>

namespace {

using bench::Case;

/// Seconds that this thread has worked; what else the machine does is not counted.
double worked()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

constexpr std::size_t megabyte = 1024 * 1024;

/// Keeps freed memory, large pieces included, in the heap of the process.
void keepMemory()
{
    mallopt(M_MMAP_THRESHOLD, 32 * megabyte);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

/// Makes the heap begin with so much memory in one piece that no run has to ask the system for any.
void freshMemory(std::size_t size)
{
    // Beyond the threshold it would go back at once.
    size = std::min<std::size_t>(size, 2000 * megabyte);
    std::vector<std::unique_ptr<char[]>> pieces;
    for (std::size_t got = 0; got < size; got += 16 * megabyte) {
        pieces.push_back(std::make_unique<char[]>(16 * megabyte));
    }
}

struct Outcome {
    double seconds;
    std::size_t bytes; ///< that the results take
};

Outcome run(Case const& each, std::size_t times, std::size_t memory)
{
    freshMemory(2 * memory);
    // The first run of the copy pays for pages that it shares no longer. What it makes stays.
    bench::Result const first = each.run();
    std::vector<bench::Result> results(times);
    std::size_t const before = mallinfo2().uordblks;
    double const start = worked();
    for (bench::Result& result : results) {
        result = each.run();
    }
    return {worked() - start, mallinfo2().uordblks - before};
}

/// One run in a copy of this process, so that each run finds the heap as it was before the first
/// one: where the pieces lie that others have freed can treble a time.
Outcome runApart(Case const& each, std::size_t times, std::size_t memory)
{
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::system_error(errno, std::generic_category(), "times: pipe");
    }
    pid_t const child = fork();
    if (child == 0) {
        Outcome const outcome = run(each, times, memory);
        _exit(write(ends[1], &outcome, sizeof outcome) == sizeof outcome ? 0 : 1);
    }
    close(ends[1]);
    Outcome outcome{};
    bool const good = child > 0 && read(ends[0], &outcome, sizeof outcome) == sizeof outcome;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    if (!good) {
        throw std::runtime_error("times: a run of " + each.workload + " failed");
    }
    return outcome;
}

void measure(benchmark::State& state, Case const& each, std::size_t& memory)
{
    // Small documents are read several times in one run, so that the clock does not count.
    std::size_t const times = std::max<std::size_t>(1, 1000 / each.elements);
    if (memory == 0) {
        // Lists that grow leave some behind.
        memory = runApart(each, times, 0).bytes * 2;
    }
    for ([[maybe_unused]] auto round : state) {
        state.SetIterationTime(runApart(each, times, memory).seconds);
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
        benchmark::RegisterBenchmark(
            name.c_str(),
            [&each, memory = std::size_t{0}](auto& state) mutable { measure(state, each, memory); })
            ->UseManualTime()
            ->Iterations(1);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
