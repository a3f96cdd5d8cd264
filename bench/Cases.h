#pragma once

#include "bench/Documents.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

/// What a measured call made; it is freed after the measurement.
using Result = std::shared_ptr<void>;

/// One thing to measure: a direction of one subject on one document.
struct Case {
    std::string workload;
    std::string direction; ///< serialize or deserialize
    std::string subject;   ///< kiv, a limit or a peer
    std::size_t elements;
    std::function<Result()> run;
};

using Document = std::shared_ptr<zel::dataformats::data::Array>;

// Each adds the cases of its subjects for one document, which the cases keep alive.

/// The library itself.
void addOwn(std::vector<Case>& cases, Workload const& workload, Document const& document);

/// What cannot be gone below with these value classes:
/// - build, for serialize: `new`, `setNew` and `pushNew` alone, out of plain structures
/// - read, for deserialize: each look-up with a ready-made key, `Ref` and the public setters
/// - fill, for deserialize: the setters alone, out of plain structures
void addLimits(std::vector<Case>& cases, Workload const& workload, Document const& document);

// The peers read plain structures from trees of their own kind, and write them; protobuf parses and
// writes bytes instead.

void addNlohmann(std::vector<Case>& cases, Workload const& workload, Document const& document);
void addBoostJson(std::vector<Case>& cases, Workload const& workload, Document const& document);
void addProtobuf(std::vector<Case>& cases, Workload const& workload, Document const& document);

} // namespace bench
