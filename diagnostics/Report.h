#pragma once

#include "diagnostics/Ignored.h"
#include "diagnostics/Line.h"
#include "diagnostics/Receiver.h"
#include "diagnostics/Record.h"
#include "diagnostics/Sink.h"
#include "diagnostics/Totals.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace kiv::diagnostics {

/// Tells what happens in a running process: each finding once, and at the end how often each came
/// and what was called.
class Report : public Receiver {
public:
    /// Takes its settings from the environment; docs/diagnostics.md has them.
    Report();

    void onFinding(Finding const& finding) override;
    void onStart(Call const& call) override;
    void onEnd(Call const& call) override;

    /// Tells the counts, once. May be called by a signal handler.
    void finish();

private:
    /// A finding that was told. They stay until the process ends and are never taken out of the
    /// list, so that it can be walked at any time.
    struct Told {
        std::string text;
        std::string fields;
        std::atomic<std::size_t> times;
        Told const* next;
    };

    void tell(Finding const& finding, Told const& told);
    void putTimes(Line& line, Told const& told) const;
    void putUntold(Line& line) const;
    void putTotals(Line& line, std::size_t index) const;

    std::string m_program;
    Ignored m_ignored;
    Sink m_sink;
    bool m_isJson = false;
    std::unique_ptr<Record> m_record;
    Totals m_totals;
    std::mutex m_mutex;
    std::unordered_map<std::string, Told*> m_told;
    std::atomic<Told const*> m_last{nullptr};
    std::atomic<std::size_t> m_untold{0};
    std::atomic<bool> m_isFinished{false};
};

} // namespace kiv::diagnostics
