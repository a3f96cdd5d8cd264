#pragma once

#include <string>
#include <string_view>

namespace reference {

/// Who holds whom in a service, and between it and others, as Graphviz text with links to the
/// resources. Empty if nothing there holds or is held.
std::string graphOf(std::string_view service);

/// A picture as Graphviz wrote it, fit to stand within a page.
std::string inlined(std::string const& svg);

} // namespace reference
