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

    $Resource$();
    ~$Resource$() override;
    [[nodiscard]] std::unique_ptr<zel::dataformats::data::Value> serialize() const override;
    bool deserialize(zel::dataformats::data::Value const* value) override;
    [[nodiscard]] std::size_t getNumberOfElements() const override;

    /// The slots themselves; null where the element was extracted.
    $getObjects$
    /// Appends a slot and takes the element over.
    void addObject(std::unique_ptr<$Element$> element);
    /// Hands over the element in that slot, or null if there is none. The slot stays behind, null.
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
    $Element$();
    ~$Element$() override;
    [[nodiscard]] std::unique_ptr<zel::dataformats::data::Value>
    serialize(SerializationType type) const override;
    bool deserialize(zel::dataformats::data::Value const* value) override;

    $fields$
private:
    $members$
};

} // namespace zel::kiv::common::$service$
)";

Block includesOf(std::set<std::string> const& headers)
{
    std::string lines;
    for (std::string const& each : headers) {
        lines += "\n#include \"" + each + '"';
    }
    return lines;
}

/// The resource's own comment: what it collects, since `about` tells of one element.
Block resourceAbout(Resource const& resource)
{
    return comment("The collection `" + resource.service + '/' + resource.resourceKey +
                   "`; it owns its elements. See `" + resource.element + "`.");
}

/// One comment, and the accessors below it.
Block fieldOf(Field const& field, FieldCode const& code)
{
    auto const traits = zel::kiv::catalogue::traitsOf(field.kind);
    std::string about = '`' + field.key + "`: " + std::string(traits.word) + ", " +
                        std::string(traits.unset) + " while unset.";
    for (std::string const& sentence : {field.note, code.warning}) {
        about += (sentence.empty() ? "" : " ") + sentence;
    }
    Block accessors;
    for (Accessor const& accessor : code.accessors) {
        accessors += declarationOf(accessor);
    }
    return fill(R"(
$about$
$accessors$

)",
                {{"about", comment(about)}, {"accessors", accessors}});
}

} // namespace

std::string headerPage(Resource const& resource, Interface const& interface)
{
    std::set<std::string> headers;
    Block fields;
    Block members;
    for (Field const& field : resource.fields) {
        FieldCode const code = codeOf(field, interface);
        headers.insert(code.includes.begin(), code.includes.end());
        fields += fieldOf(field, code);
        for (std::string const& member : code.members) {
            members += memberLine(member);
        }
    }
    headers.erase(headerOf(resource));
    return fill(header, {{"mark", generatedMark},
                         {"definition", resource.place.file},
                         {"service", resource.service},
                         {"Resource", resource.name},
                         {"Element", resource.element},
                         {"resourceHead", classHeadOf(resource.name, "IResourceBase")},
                         {"elementHead",
                          classHeadOf(resource.name + "::" + resource.element, "IObjectBase")},
                         {"resourceAbout", resourceAbout(resource)},
                         {"elementAbout", comment(resource.about)},
                         {"getObjects", withResult("[[nodiscard]] std::vector<std::unique_ptr<" +
                                                       resource.element + ">> const&",
                                                   "getObjects() const;")},
                         {"includes", includesOf(headers)},
                         {"fields", fields},
                         {"members", members}})
        .at(0);
}

} // namespace kivgen
