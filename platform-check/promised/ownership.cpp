#include "Report.h"
#include "Visits.h"

#include <cstdlib>
#include <new>

using namespace check;

namespace {

long alive = 0;

Value* tree()
{
    auto* const inner = new Object;
    inner->setNew("text", new String("long enough to lie outside of the string itself"));
    auto* const array = new Array;
    array->pushNew(inner);
    array->pushNew(new Float(0.5));
    auto* const outer = new Object;
    outer->setNew("list", array);
    return outer;
}

/// How much is left of what an operation allocates.
template <typename Operation>
int left(Operation const& operation)
{
    long const before = alive;
    operation();
    return static_cast<int>(alive - before);
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    ++alive;
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory != nullptr) {
        --alive;
        std::free(memory);
    }
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

void look(Report& report)
{
    report.promised("pieces of memory left by deleting a tree at its root", "0",
                    [] { return left([] { delete tree(); }); });
    report.promised("pieces left by an Object on the stack", "0", [] {
        return left([] {
            Object object;
            object.setNew("tree", tree());
        });
    });
    report.promised("pieces left by a clone that outlives its original", "0", [] {
        return left([] {
            Value* const original = tree();
            Value* const copy = original->clone();
            delete original;
            delete copy;
        });
    });
    report.promised("a clone is a deep copy", "true", [] {
        Value* const original = tree();
        Value* const copy = original->clone();
        auto const& list = *static_cast<Object*>(original)->get().find("list");
        auto const& same = *static_cast<Object*>(copy)->get().find("list");
        bool const isDeep = list.second != same.second;
        delete original;
        auto& entries = static_cast<Array*>(static_cast<Value*>(same.second))->get();
        bool const isWhole =
            entries.end() - entries.begin() == 2 && Ref(entries.begin()[1]).asFloat() == 0.5;
        delete copy;
        return isDeep && isWhole;
    });
}
