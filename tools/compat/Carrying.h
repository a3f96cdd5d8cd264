#pragma once

#include "tools/compat/Comparison.h"

namespace compat {

/// Whether all that a field carried when old processes wrote it is carried by what the field is
/// now: it comes out again as it went in, kind for kind and key for key. What the platform may
/// convert does not count, since it does so in its own way.
bool carries(Comparison const& comparison, Field const& was, Field const& is);

/// The same of a whole element, under other owners.
bool carries(Comparison const& comparison, Resource const& was, Resource const& is);

/// What becomes of an old value in a field of another kind, in words: `the field stays unset`.
std::string readAs(Field const& was, Field const& is);

} // namespace compat
