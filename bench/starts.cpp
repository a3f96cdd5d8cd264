// Measures what a library costs at the start of a program: the program that is linked to it beside
// the one that is not. All are started in turn, in another order each time, on one processor.
//   starts ROUNDS NAME WITHOUT WITH NAME WITHOUT WITH
// Prints for each of the two names "startup-microseconds/NAME" and "startup-faults/NAME", the
// medians of what a start takes beyond that of the program without: processor time, the system's
// share included, and page faults. "startup-time" is the ratio of the first time to the second,
// "startup-time-low" and "startup-time-high" are its bounds at 95 %, by drawing rounds anew.

#include <sched.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Cost {
    double microseconds = 0;
    double faults = 0;
};

struct Library {
    std::string name;
    std::string without;
    std::string with;
};

/// What the libraries cost in one round.
using Round = std::array<Cost, 2>;

double microseconds(timeval const& time)
{
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_usec);
}

void stayOnOneProcessor()
{
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    if (sched_setaffinity(0, sizeof one, &one) != 0) {
        throw std::runtime_error("starts: the processor cannot be chosen");
    }
}

/// Runs the program to its end.
Cost start(std::string program)
{
    std::array<char*, 2> arguments{program.data(), nullptr};
    pid_t child = 0;
    int status = 0;
    rusage used{};
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments.data(), environ) != 0 ||
        wait4(child, &status, 0, &used) != child || status != 0) {
        throw std::runtime_error("starts: " + program + " cannot be started, or fails");
    }
    return {microseconds(used.ru_utime) + microseconds(used.ru_stime),
            static_cast<double>(used.ru_minflt + used.ru_majflt)};
}

Round runRound(std::array<Library, 2> const& libraries, std::mt19937& random)
{
    struct Start {
        std::size_t library;
        bool isWith;
    };
    std::array<Start, 4> order{{{0, false}, {0, true}, {1, false}, {1, true}}};
    std::shuffle(order.begin(), order.end(), random);
    Round round;
    for (auto const& [library, isWith] : order) {
        Cost const cost = start(isWith ? libraries[library].with : libraries[library].without);
        double const sign = isWith ? 1 : -1;
        round[library].microseconds += sign * cost.microseconds;
        round[library].faults += sign * cost.faults;
    }
    return round;
}

double median(std::vector<Round> const& rounds, std::size_t library, double Cost::*figure)
{
    std::vector<double> values;
    values.reserve(rounds.size());
    for (Round const& each : rounds) {
        values.push_back(each[library].*figure);
    }
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double ratio(std::vector<Round> const& rounds)
{
    return median(rounds, 0, &Cost::microseconds) / median(rounds, 1, &Cost::microseconds);
}

/// The ratios of many samples of the rounds, in ascending order.
std::vector<double> ratiosOfSamples(std::vector<Round> const& rounds, std::mt19937& random)
{
    std::uniform_int_distribution<std::size_t> any(0, rounds.size() - 1);
    std::vector<double> ratios(2000);
    std::vector<Round> sample(rounds.size());
    for (double& each : ratios) {
        std::generate(sample.begin(), sample.end(), [&] { return rounds[any(random)]; });
        each = ratio(sample);
    }
    std::sort(ratios.begin(), ratios.end());
    return ratios;
}

void measure(std::size_t count, std::array<Library, 2> const& libraries)
{
    stayOnOneProcessor();
    std::mt19937 random; // the same orders in every run
    // The first start brings the files into memory.
    runRound(libraries, random);
    std::vector<Round> rounds;
    rounds.reserve(count);
    while (rounds.size() < count) {
        rounds.push_back(runRound(libraries, random));
    }
    for (std::size_t i = 0; i < libraries.size(); ++i) {
        std::cout << "startup-microseconds/" << libraries[i].name << ' '
                  << median(rounds, i, &Cost::microseconds) << '\n'
                  << "startup-faults/" << libraries[i].name << ' '
                  << median(rounds, i, &Cost::faults) << '\n';
    }
    std::vector<double> const ratios = ratiosOfSamples(rounds, random);
    std::cout << "startup-time " << ratio(rounds) << '\n'
              << "startup-time-low " << ratios[ratios.size() / 40] << '\n'
              << "startup-time-high " << ratios[ratios.size() - 1 - ratios.size() / 40] << '\n';
}

} // namespace

int main(int count, char** arguments)
try {
    std::vector<std::string> const words(arguments + 1, arguments + count);
    std::size_t const rounds = words.size() == 7 ? std::stoul(words[0]) : 0;
    if (rounds == 0) {
        std::cerr << "usage: starts ROUNDS NAME WITHOUT WITH NAME WITHOUT WITH\n";
        return 2;
    }
    measure(rounds, {{{words[1], words[2], words[3]}, {words[4], words[5], words[6]}}});
    return 0;
} catch (std::exception const& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
}
