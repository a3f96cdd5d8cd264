// Finds how deep elements can be nested on a stack of 8 MB: read from a value (in), written to one
// (out) and freed. Prints "in N", "out N" and "freed N".
//   depth              looks for the limits
//   depth IN OUT FREED only tries these depths; fails if one does not survive

#include "services/places/Locations.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
#include <string>

namespace {

using Element = zel::kiv::common::places::Locations::LocationObject;
using zel::dataformats::data::Object;
using zel::dataformats::data::Value;
using zel::kiv::common::SerializationType;

constexpr rlim_t stackSize = 8UL * 1024 * 1024;

std::unique_ptr<Value> nestedValue(int depth)
{
    auto value = std::make_unique<Object>();
    for (int i = 1; i < depth; ++i) {
        auto outer = std::make_unique<Object>();
        outer->setNew("parent", value.release());
        value = std::move(outer);
    }
    return value;
}

std::unique_ptr<Element> nestedElement(int depth)
{
    auto element = std::make_unique<Element>();
    for (int i = 1; i < depth; ++i) {
        auto outer = std::make_unique<Element>();
        outer->setParent(std::move(element));
        element = std::move(outer);
    }
    return element;
}

// None of the three frees more than it has to: the process ends at once.

void in(int depth)
{
    auto* const element = new Element;
    element->deserialize(nestedValue(depth).release());
}

void out(int depth)
{
    static_cast<void>(nestedElement(depth).release()->serialize(SerializationType::Full).release());
}

void freed(int depth)
{
    nestedElement(depth).reset();
}

/// Runs it in a process of its own, whose first thread's stack may grow to the limit set below.
bool survives(void (*work)(int), int depth)
{
    pid_t const child = fork();
    if (child == 0) {
        work(depth);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int deepest(void (*work)(int))
{
    int good = 1'000;
    int bad = 1'000'000;
    while (bad - good > 500) {
        int const middle = good + (bad - good) / 2;
        (survives(work, middle) ? good : bad) = middle;
    }
    return good;
}

struct Way {
    char const* name;
    void (*work)(int);
};

constexpr Way ways[] = {{"in", in}, {"out", out}, {"freed", freed}};

} // namespace

int main(int count, char** arguments)
{
    rlimit limit{};
    getrlimit(RLIMIT_STACK, &limit);
    if (limit.rlim_cur != stackSize) {
        // The limit counts from the start of a program.
        limit.rlim_cur = stackSize;
        if (setrlimit(RLIMIT_STACK, &limit) != 0) {
            std::cerr << "depth: the stack cannot be limited to 8 MB\n";
            return 1;
        }
        execv("/proc/self/exe", arguments);
        return 1;
    }
    if (count != 1 && count != 4) {
        std::cerr << "usage: depth [IN OUT FREED]\n";
        return 2;
    }
    bool good = true;
    for (int i = 0; i < 3; ++i) {
        if (count == 1) {
            std::cout << ways[i].name << ' ' << deepest(ways[i].work) << '\n';
            continue;
        }
        int const wanted = std::stoi(arguments[i + 1]);
        bool const survived = survives(ways[i].work, wanted);
        good = good && survived;
        std::cout << ways[i].name << ' ' << wanted << (survived ? " survives" : " dies") << '\n';
    }
    return good ? 0 : 1;
}
