// What happens when the library that tells is loaded, and when the process ends.

#include "diagnostics/Report.h"

#include <array>
#include <csignal>
#include <cstdlib>

namespace kiv::diagnostics {

namespace {

Report* report = nullptr;

void onSignal(int signal)
{
    report->finish();
    // The handler goes with the first signal, so this is the end that the program had chosen.
    static_cast<void>(std::raise(signal));
}

/// Signals that end a process which says nothing else of them.
void listenTo(int signal)
{
    struct sigaction before {};
    if (sigaction(signal, nullptr, &before) != 0 || before.sa_handler != SIG_DFL) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    sigaction(signal, &action, nullptr);
}

/// Made before anything of the program runs; the report is never freed, since threads may still be
/// at work when the process ends.
struct Start {
    Start()
    {
        report = new Report;
        setReceiver(report);
        static_cast<void>(std::atexit([] { report->finish(); }));
        for (int const signal : std::array{SIGTERM, SIGINT, SIGHUP}) {
            listenTo(signal);
        }
    }
} const start;

} // namespace

} // namespace kiv::diagnostics
