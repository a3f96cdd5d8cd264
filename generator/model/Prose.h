#pragma once

#include "generator/model/TomlReader.h"

#include <cstddef>
#include <string>
#include <vector>

/// What definitions say to people.
namespace kivgen {

/// A text for people, with what it names in backticks.
struct Prose {
    SourcePosition place;
    std::string text;
    std::vector<std::string> names;
};

/// What messages say of a text, and how long it may be.
struct ProseRule {
    std::string what;    ///< `the note on 'position'`
    std::string says;    ///< what belongs there: `it says in a sentence what one element is`
    std::size_t longest; ///< bytes
};

/// Takes a text out of its row. What is wrong with its form is added to `faults`, whether its names
/// exist is seen later.
Prose readProse(Entry const& row, ProseRule const& rule, Faults& faults);

} // namespace kivgen
