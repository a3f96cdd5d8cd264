#include "tools/kiv/check/Checker.h"

#include "frame/IObjectBase.h"
#include "text/Failure.h"

#include <functional>
#include <utility>

namespace kiv {

namespace {

/// Adds to a finding where it stands in the text.
class Placing : public diagnostics::Receiver {
public:
    using Handler = std::function<void(Placed placed)>;

    Placing(json::Entry const& entry, json::Places const& places, Handler handler)
        : m_entry(entry), m_places(places), m_handler(std::move(handler))
    {
    }

    void onFinding(diagnostics::Finding const& finding) override
    {
        m_handler({positionOf(finding), finding});
    }

private:
    [[nodiscard]] json::Position positionOf(diagnostics::Finding const& finding) const
    {
        auto const& [holder, key, index] = finding.place;
        if (holder == nullptr) {
            return m_entry.position;
        }
        if (key.empty()) {
            return m_places.entry(*holder, index);
        }
        auto const* const place = m_places.find(static_cast<data::Object const&>(*holder), key);
        bool const isAboutKey = finding.id == diagnostics::Id::UnknownKey;
        return isAboutKey ? place->keyPosition : place->position;
    }

    json::Entry const& m_entry;
    json::Places const& m_places;
    Handler m_handler;
};

std::unique_ptr<common::IObjectBase> readWith(catalogue::Resource const& resource,
                                              json::Entry const& entry, json::Places const& places,
                                              Placing::Handler handler)
{
    Placing placing(entry, places, std::move(handler));
    return diagnostics::readEntry(resource, entry.index, entry.value.get(), placing);
}

} // namespace

std::unique_ptr<common::IObjectBase> readEntry(catalogue::Resource const& resource,
                                               json::Entry const& entry, json::Places const& places,
                                               std::vector<Placed>& findings)
{
    return readWith(resource, entry, places,
                    [&](Placed placed) { findings.push_back(std::move(placed)); });
}

std::unique_ptr<common::IObjectBase> readEntry(catalogue::Resource const& resource,
                                               json::Entry const& entry, json::Places const& places,
                                               std::string const& file)
{
    return readWith(resource, entry, places, [&](Placed const& placed) {
        auto const& finding = placed.finding;
        if (finding.fate == diagnostics::Fate::Forbidden) {
            throw Failure(json::placeText(file, placed.position),
                          finding.path + " is " + finding.stands + ", and " + finding.becomes +
                              "; " + finding.meant);
        }
    });
}

} // namespace kiv
