#pragma once

#include "generator/model/Fault.h"
#include "generator/model/Prose.h"
#include "generator/model/TomlReader.h"

#include <set>
#include <string>
#include <vector>

namespace kivgen {

/// How many faults of one kind have a suggestion: each takes a look at every name.
inline constexpr std::size_t mostSuggestions = 100;

/// A target as a definition spells it, for the check whether it exists.
struct Use {
    SourcePosition place;
    std::string text;
};

/// What one file says.
struct Definition {
    Resource resource;
    std::vector<Use> uses; ///< all targets but external ones
    SourcePosition placeOfElement;
    SourcePosition placeOfKey;  ///< where `resource_key` is given, or the file as a whole
    std::set<std::string> keys; ///< of all fields, also of those whose row is faulty
    std::vector<Prose> prose;   ///< what it says to people
    bool isWhole = true;        ///< whether nothing of the file was left out that could not be read
};

/// Takes a definition out of the table of its file, `id`, `name` and `uri` added. Whatever is wrong
/// in it alone is added to `faults`; the result then holds what could be understood, so that the
/// checks across definitions can go on.
Definition readDefinition(Node const& document, std::string const& service, std::string const& name,
                          SourcePosition const& file, Faults& faults);

} // namespace kivgen
