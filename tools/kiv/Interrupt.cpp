#include "tools/kiv/Interrupt.h"

#include <csignal>

namespace kiv {

namespace {

volatile std::sig_atomic_t interrupts = 0;

extern "C" void onInterrupt(int /*signal*/)
{
    interrupts = 1;
}

} // namespace

void noteInterrupts()
{
    struct sigaction action {};
    action.sa_handler = onInterrupt;
    // Reads that wait are ended, and only the first interrupt is taken so gently.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    static_cast<void>(sigaction(SIGINT, &action, nullptr));
}

void throwIfInterrupted()
{
    if (interrupts != 0) {
        throw Interrupted();
    }
}

} // namespace kiv
