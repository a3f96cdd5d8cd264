#pragma once

#include "diagnostics/Receiver.h"
#include "text/Failure.h"
#include "tools/kiv/Documents.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace kiv {

/// What the library makes of an entry, and where in the document it found something on the way.
struct Placed {
    json::Position position;
    diagnostics::Finding finding;
};

/// Knows where in the text the findings in an entry stand, those whose places are noted.
class Locator {
public:
    Locator(json::Position entry, json::Places const& places) : m_entry(entry), m_places(places) {}
    [[nodiscard]] json::Position positionOf(diagnostics::Finding const& finding) const;

private:
    json::Position m_entry;
    json::Places const& m_places;
};

/// Takes what is found, while the value that it is found in is still there.
using FindingHandler =
    std::function<void(diagnostics::Finding const& finding, Locator const& locator)>;

/// What the library must not be given, under that key of an element.
class Forbidden : public Failure {
public:
    Forbidden(std::string const& where, std::string const& what, std::string_view key)
        : Failure(where, what), m_key(key)
    {
    }
    [[nodiscard]] std::string const& key() const { return m_key; }

private:
    std::string m_key;
};

/// For who has no use for findings: throws `Forbidden` at what the library must not be given.
FindingHandler refuseForbidden(std::string const& file);

/// Reads one entry of a document as the resource would. `parts` tells of those lists that were read
/// in parts before.
std::unique_ptr<common::IObjectBase> readEntry(DocumentEntry const& given,
                                               FindingHandler const& handler,
                                               std::span<diagnostics::ListPart const> parts);

/// Reads a part of a list as the element would whose list it is, into an element of its own.
/// `hasTaken` tells whether the parts before had anything but nulls.
std::unique_ptr<common::IObjectBase> readPart(DocumentPart const& given,
                                              FindingHandler const& handler, bool hasTaken);

} // namespace kiv
