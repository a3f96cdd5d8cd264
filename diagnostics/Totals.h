#pragma once

#include "diagnostics/Receiver.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kiv::diagnostics {

/// What was called and found, by resource. Counting and reading needs no lock.
class Totals {
public:
    struct Row {
        std::atomic<std::uint64_t> in{0};
        std::atomic<std::uint64_t> out{0};
        std::atomic<std::uint64_t> elements{0};
        std::atomic<std::uint64_t> nanoseconds{0};
        std::atomic<std::uint64_t> findings{0};
    };

    Totals();

    /// A call begins or ends in this thread.
    static void start(Call const& call);
    void add(Call const& call);
    void addFinding(zel::kiv::catalogue::Resource const* resource);

    [[nodiscard]] std::size_t size() const { return m_rows.size(); }
    [[nodiscard]] Row const& row(std::size_t index) const { return m_rows[index]; }
    /// Service and resource of a row, `external` alone for `ExternalResourceObject`.
    struct Name {
        std::string_view service;
        std::string_view resource;
    };
    [[nodiscard]] static Name nameAt(std::size_t index);

private:
    Row& rowFor(zel::kiv::catalogue::Resource const* resource);

    std::vector<Row> m_rows; ///< as the catalogue has them, and a last one for what is outside
};

} // namespace kiv::diagnostics
