#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/pages/Pages.h"
#include "generator/pages/Signatures.h"

#include <set>

namespace kivgen {

namespace {

// The element is declared first and defined after the headers of its targets, for these may in turn
// include this one.
constexpr std::string_view header = R"(
$mark$$definition$
#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace zel::kiv::common::$service$ {

$resourceAbout$
$resourceHead$
public:
    class $Element$;

    /// Makes an empty collection.
    $Resource$();
    ~$Resource$() override;

    /// An `Array` of the elements, each in full; the caller owns it. No slot may be null.
    [[nodiscard]] std::unique_ptr<zel::dataformats::data::Value> serialize() const override;

    /// Appends one element for each entry of the `Array` given; true for any value.
    bool deserialize(zel::dataformats::data::Value const* value) override;

    /// The number of slots, emptied ones included.
    [[nodiscard]] std::size_t getNumberOfElements() const override;

    /// The slots themselves; null where the element was extracted.
$getObjects$

    /// Appends a slot and takes the element over.
    void addObject(std::unique_ptr<$Element$> element);

    /// Hands the element in that slot over. The slot stays behind, null; it must not be there when
    /// the collection is serialized. Null for an index at or beyond the number of slots.
    std::unique_ptr<$Element$> extractElement(unsigned int index);

private:
    std::vector<std::unique_ptr<$Element$>> m_objects;
};

} // namespace zel::kiv::common::$service$
$includes$

namespace zel::kiv::common::$service$ {

$elementAbout$
$elementHead$
public:
    /// Makes an element with no field set.
    $Element$();

    /// Frees all that the fields hold.
    ~$Element$() override;

    /// The element as an `Object` of its set fields, or as a `String` of its uri; the caller owns
    /// it. No field that is set may hold a null element.
    [[nodiscard]] std::unique_ptr<zel::dataformats::data::Value>
    serialize(SerializationType type) const override;

    /// Sets the fields that the `Object` given has, on top of those set already; true for any
    /// value.
    bool deserialize(zel::dataformats::data::Value const* value) override;

$declarations$
private:
$members$
};

} // namespace zel::kiv::common::$service$
)";

std::string includesOf(std::set<std::string> const& headers)
{
    std::string lines;
    for (std::string const& each : headers) {
        lines += "#include \"" + each + "\"\n";
    }
    return lines.empty() ? lines : '\n' + lines;
}

/// The resource's own comment: what it collects, since `about` tells of one element.
std::string resourceAbout(Resource const& resource)
{
    return comment("The collection `" + resource.service + '/' + resource.resourceKey +
                       "`; it owns its elements. See `" + resource.element + "`.",
                   0);
}

} // namespace

Page headerPage(Resource const& resource, Interface const& interface)
{
    std::string const own = headerOf(resource);
    std::set<std::string> headers;
    std::string declarations;
    std::string members;
    for (Field const& field : resource.fields) {
        FieldCode const code = codeOf(field, interface);
        headers.insert(code.includes.begin(), code.includes.end());
        for (Accessor const& accessor : code.accessors) {
            declarations += declarationOf(accessor) + '\n';
        }
        for (std::string const& member : code.members) {
            members += memberLine(member);
        }
    }
    headers.erase(own);
    // A block ends with one line end here, since a blank line stands behind it in the template.
    std::string const getObjects =
        withResult(4, "[[nodiscard]] std::vector<std::unique_ptr<" + resource.element + ">> const&",
                   "getObjects() const;");
    return {own, fill(header, {{"mark", generatedMark},
                               {"definition", resource.place.file},
                               {"service", resource.service},
                               {"Resource", resource.name},
                               {"Element", resource.element},
                               {"resourceHead", classHeadOf(resource.name, "IResourceBase")},
                               {"elementHead", classHeadOf(resource.name + "::" + resource.element,
                                                           "IObjectBase")},
                               {"resourceAbout", resourceAbout(resource)},
                               {"elementAbout", comment(resource.about, 0)},
                               {"getObjects", getObjects},
                               {"includes", includesOf(headers)},
                               {"declarations", declarations},
                               {"members", members}})};
}

} // namespace kivgen
