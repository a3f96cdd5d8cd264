#include "tools/kiv/check/Checker.h"

#include "frame/IObjectBase.h"
#include "text/Failure.h"

namespace kiv {

namespace {

/// Tells of findings together with who knows where they stand.
class Placing : public diagnostics::Receiver {
public:
    Placing(json::Position entry, json::Places const& places, FindingHandler const& handler)
        : m_locator(entry, places), m_handler(handler)
    {
    }

    void onFinding(diagnostics::Finding const& finding) override { m_handler(finding, m_locator); }

private:
    Locator m_locator;
    FindingHandler const& m_handler;
};

} // namespace

json::Position Locator::positionOf(diagnostics::Finding const& finding) const
{
    auto const& [holder, key, index] = finding.place;
    if (holder == nullptr) {
        return m_entry;
    }
    if (key.empty()) {
        return m_places.entry(*holder, index);
    }
    auto const* const place = m_places.find(static_cast<data::Object const&>(*holder), key);
    bool const isAboutKey = finding.id == diagnostics::Id::UnknownKey;
    return isAboutKey ? place->keyPosition : place->position;
}

FindingHandler refuseForbidden(std::string const& file)
{
    return [file](diagnostics::Finding const& finding, Locator const& locator) {
        if (finding.fate == diagnostics::Fate::Forbidden) {
            throw Forbidden(json::placeText(file, locator.positionOf(finding)),
                            finding.path + " is " + finding.stands + ", and " + finding.becomes +
                                "; " + finding.meant,
                            finding.firstKey);
        }
    };
}

std::unique_ptr<common::IObjectBase> readEntry(DocumentEntry const& given,
                                               FindingHandler const& handler,
                                               std::span<diagnostics::ListPart const> parts)
{
    Placing placing(given.entry.position, given.places, handler);
    return diagnostics::readEntry(given.resource, given.entry.index, given.entry.value.get(),
                                  placing, parts);
}

std::unique_ptr<common::IObjectBase> readPart(DocumentPart const& given,
                                              FindingHandler const& handler, bool hasTaken)
{
    json::Part& part = given.part;
    diagnostics::ListPart const list{part.key, part.first, hasTaken, false};
    data::Object element;
    element.setNew(part.key.c_str(), part.array.release());
    Placing placing({}, part.places, handler);
    return diagnostics::readEntry(given.resource, given.index, &element, placing, {&list, 1});
}

} // namespace kiv
