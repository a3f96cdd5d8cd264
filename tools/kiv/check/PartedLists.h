#pragma once

#include "tools/kiv/check/Checker.h"

#include <map>
#include <string>
#include <vector>

namespace kiv {

/// The lists of an element that are read in parts before the element itself has come. What is found
/// in them counts only then: a list whose key is repeated does not.
class PartedLists {
public:
    /// Reads a part. `adapt` is told of each finding while its value is still there.
    void read(DocumentPart const& given, std::function<void(Placed& placed)> const& adapt);

    /// Hands over what was found in the parts that count, and forgets all of them. What it returns
    /// is what there is to know of them when the rest is read.
    std::vector<diagnostics::ListPart> finish(json::GivenParts const& given,
                                              std::vector<Placed>& findings);

private:
    struct List {
        bool hasTaken = false; ///< anything but nulls
        std::vector<Placed> findings;
    };
    std::map<std::string, List> m_lists;
};

} // namespace kiv
