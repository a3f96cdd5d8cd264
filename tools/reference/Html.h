#pragma once

#include <string>
#include <string_view>

/// The browsable reference: pages made of the catalogue, the frame's headers and templates.
namespace reference {

/// Text as HTML shows it, fit for attributes too.
std::string escaped(std::string_view text);

/// The same for names and pieces of C++, which may be broken before a capital and behind `::`, `/`,
/// `.`, `(` and `<`, and nowhere else.
std::string breakable(std::string_view code);

/// What ` name="…"` says first in the text, or nothing.
std::string attributeOf(std::string const& html, std::string const& name);

/// Takes every ` name="…"` out of the text.
void dropAttribute(std::string& html, std::string const& name);

} // namespace reference
