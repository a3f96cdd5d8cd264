#pragma once

#include <cstddef>
#include <new>

/// Watches what `new` does in the whole test program, the libraries in it included, and makes it
/// fail on demand.
namespace allocations {

/// How often `new` was called so far.
std::size_t made();

/// How much of it is not deleted yet.
std::size_t alive();

/// The size that was asked for in the first call of `new` since `awaitNext`; 0 if there was none.
void awaitNext();
std::size_t sizeOfNext();

/// Lets the next `successes` calls of `new` through and makes the one after them fail, once.
void failAfter(std::size_t successes);

/// Takes the last `failAfter` back; tells whether it had come to its failure.
bool stopFailing();

/// Makes each allocation of `work` fail in turn, in as many runs, up to the run in which none is
/// left to fail. `check` follows each run that failed. Gives the number of those.
template <typename Work, typename Check>
std::size_t failEach(Work work, Check check)
{
    for (std::size_t run = 0;; ++run) {
        failAfter(run);
        try {
            work();
        } catch (std::bad_alloc const&) {
        }
        if (!stopFailing()) {
            return run;
        }
        check();
    }
}

} // namespace allocations
