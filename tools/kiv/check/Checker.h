#pragma once

#include "json/JsonReader.h"
#include "tools/kiv/check/Finding.h"
#include "tools/kiv/walk/ElementWalk.h"

#include <functional>
#include <string>

namespace kiv {

/// Takes one finding after the other, in the order in which the library would come by.
using FindingHandler = std::function<void(Finding finding)>;

/// Finds what the library will drop, bend or invent of one entry of a resource's array. What it
/// says a value reads as comes from the library's own operations.
class Checker : private WalkObserver {
public:
    /// Both must outlive the checker.
    Checker(json::Places const& places, FindingHandler const& report);

    /// Checks an entry; what `report` throws passes through.
    void check(catalogue::Resource const& resource, json::Entry const& entry);

private:
    void onElement(Path const& path, catalogue::Resource const* resource,
                   data::Object const& object) override;
    void onField(Path const& path, catalogue::Field const& field, data::Object const& holder,
                 data::Value const& value) override;
    void onEntry(Path const& path, catalogue::Field const& field, data::Array& list,
                 std::size_t index, data::Value const& value) override;
    void onDispatch(Path const& path, Dispatch const& dispatch) override;
    void onForbiddenUri(Path const& path, data::Object const& holder,
                        data::Value const* uri) override;

    void checkRepeats(Path const& path, std::span<json::Places::Place const> places);
    void checkKeys(Path const& path, catalogue::Resource const* resource,
                   data::Object const& object);
    void checkOwnUri(Path const& path, catalogue::Resource const& resource,
                     data::Object const& object);
    void checkList(Path const& path, catalogue::Field const& field, data::Value const& value,
                   json::Position position);
    /// A value of a plain field or an entry of a plain list.
    void checkPlain(Path const& path, catalogue::Kind kind, data::Value const& value,
                    json::Position position);
    /// A value of an element field or an entry of an element list.
    void checkNested(Path const& path, catalogue::Resource const* target, data::Value const& value,
                     json::Position position);
    void checkUri(Path const& path, catalogue::Resource const* target, std::string const& uri,
                  json::Position position);

    json::Places const& m_places;
    FindingHandler const& m_report;
};

} // namespace kiv
