#include "diagnostics/Totals.h"

#include <array>
#include <chrono>

namespace kiv::diagnostics {

namespace {

using Clock = std::chrono::steady_clock;
namespace catalogue = zel::kiv::catalogue;

/// When the call in, and the call out, of this thread began.
thread_local std::array<Clock::time_point, 2> starts;

Clock::time_point& startOf(Call const& call)
{
    return starts[call.isIn ? 0 : 1];
}

} // namespace

Totals::Totals() : m_rows(catalogue::resources().size() + 1) {}

void Totals::start(Call const& call)
{
    startOf(call) = Clock::now();
}

void Totals::add(Call const& call)
{
    auto const spent = std::chrono::nanoseconds(Clock::now() - startOf(call)).count();
    Row& row = rowFor(call.what);
    row.nanoseconds += static_cast<std::uint64_t>(spent);
    row.elements += call.elements;
    ++(call.isIn ? row.in : row.out);
}

void Totals::addFinding(catalogue::Resource const* resource)
{
    ++rowFor(resource).findings;
}

Totals::Row& Totals::rowFor(catalogue::Resource const* resource)
{
    if (resource == nullptr) {
        return m_rows.back();
    }
    return m_rows[static_cast<std::size_t>(resource - catalogue::resources().data())];
}

Totals::Name Totals::nameAt(std::size_t index)
{
    auto const all = catalogue::resources();
    return index < all.size() ? Name{all[index].service, all[index].resourceKey}
                              : Name{"external", ""};
}

} // namespace kiv::diagnostics
