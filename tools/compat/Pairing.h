#pragma once

#include "tools/compat/Comparison.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace compat {

/// Puts together what is alike in both, the most alike first. `likeness(was, is)` is zero for what
/// does not belong together. What finds no partner comes out alone. The order is that of the old
/// side, with what is new behind; equally alike ones are taken in the order in which they stand.
template <typename Thing, typename Likeness>
std::vector<Pair<Thing>> pairUp(std::vector<Thing> const& was, std::vector<Thing> const& is,
                                Likeness const& likeness)
{
    struct Candidate {
        unsigned score;
        std::size_t was;
        std::size_t is;
    };
    std::vector<Candidate> candidates;
    for (std::size_t one = 0; one < was.size(); ++one) {
        for (std::size_t other = 0; other < is.size(); ++other) {
            if (unsigned const score = likeness(was[one], is[other]); score > 0) {
                candidates.push_back({score, one, other});
            }
        }
    }
    std::ranges::stable_sort(candidates, std::ranges::greater{}, &Candidate::score);

    std::vector<Pair<Thing>> pairs(was.size());
    std::ranges::transform(was, pairs.begin(), [](Thing const& each) {
        return Pair<Thing>{&each, nullptr};
    });
    std::vector<bool> isTaken(is.size());
    for (Candidate const& each : candidates) {
        if (pairs[each.was].is == nullptr && !isTaken[each.is]) {
            pairs[each.was].is = &is[each.is];
            isTaken[each.is] = true;
        }
    }
    for (std::size_t other = 0; other < is.size(); ++other) {
        if (!isTaken[other]) {
            pairs.push_back({nullptr, &is[other]});
        }
    }
    return pairs;
}

} // namespace compat
