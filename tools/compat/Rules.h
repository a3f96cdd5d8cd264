#pragma once

#include "tools/compat/Breaks.h"
#include "tools/compat/Comparison.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace compat {

/// Which part of the version a change raises, the least first.
enum class Step { None, Patch, Minor, Major };

/// Looks for one kind of change. Gives what is to be said of it beside the rule's own words, which
/// may be empty; nothing if that is not what has changed.
template <typename Thing>
using Handler = std::optional<std::string> (*)(Comparison const& comparison,
                                               Pair<Thing> const& pair);

/// One way to change the interface. Whatever is to be said of a change without looking at it stands
/// here.
struct Rule {
    std::string_view id;
    std::string_view what;
    Breaks breaks;
    Step step = Step::Major; ///< to be given for what breaks nothing
    std::string_view why;
    std::string_view todo;     ///< empty if nothing is to be done
    std::string_view row = {}; ///< of a definition, where it shows; else the thing as a whole
    std::variant<Handler<Service>, Handler<Resource>, Handler<Field>> handler;
};

/// All of them: of services, of resources, of fields.
std::span<Rule const> rules();

/// A change that was found.
struct Change {
    Rule const* rule;
    std::string subject;        ///< `radio/presets.station`, by its new name if it still has one
    std::string what;           ///< in this case, beside the rule's own words; may be empty
    kivgen::SourcePosition was; ///< without a file if it was not there
    kivgen::SourcePosition is;  ///< without a file if it no longer is
};

/// All changes from the one interface to the other, in the order of services and resources.
std::vector<Change> changesBetween(Interface const& was, Interface const& is);

} // namespace compat
