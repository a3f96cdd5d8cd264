#include "tools/kiv/walk/Guard.h"

#include "json/TypeNames.h"
#include "text/Failure.h"

namespace kiv {

namespace {

/// Stops at the first thing that the library must not be given.
class Guard : public WalkObserver {
public:
    Guard(std::string const& file, json::Places const& places) : m_file(file), m_places(places) {}

    void onForbiddenUri(Path const& path, data::Object const& holder,
                        data::Value const* uri) override
    {
        json::Places::Place const* const place = m_places.find(holder, "uri");
        throw Failure(json::placeText(m_file, place->position),
                      path.text() + " is " + std::string(typeName(uri)) +
                          ", and the library would take it for text without looking; write the "
                          "uri as text or leave the key out");
    }

private:
    std::string const& m_file;
    json::Places const& m_places;
};

} // namespace

void refuseForbidden(std::string const& file, catalogue::Resource const& resource,
                     json::Entry const& entry, json::Places const& places)
{
    Guard guard(file, places);
    ElementWalk(guard).walkEntry(resource, entry.index, entry.value.get());
}

} // namespace kiv
