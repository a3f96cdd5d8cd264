#include "tools/compat/Rules.h"

#include "tools/compat/Handlers.h"

#include <array>

namespace compat {
namespace {

constexpr Breaks wire{.wire = true};
constexpr Breaks code{.source = true, .binary = true};
constexpr Breaks binary{.binary = true};

constexpr std::string_view elementGrows =
    "The element has a member more. A client that makes one, or derives from it, keeps to the size "
    "that the old header gave, and the library writes beyond that.";
constexpr std::string_view buildAgain = "Clients are built again.";

constexpr std::array serviceRules{
    Rule{.id = "service-added",
         .what = "a service is new",
         .breaks = nothing,
         .step = Step::Minor,
         .why = "Nobody who was there before knows of it.",
         .todo = "",
         .handler = serviceAdded},
    Rule{.id = "service-removed",
         .what = "a service is gone",
         .breaks = everything,
         .why = "Its documents have no reader, its headers and symbols are not there.",
         .todo = "Keep it until nobody uses it any more; say so in its `about`.",
         .handler = serviceRemoved},
    Rule{.id = "service-renamed",
         .what = "a service has another name",
         .breaks = everything,
         .why = "The name is the first part of every uri, the namespace of the classes and the "
                "folder of the headers.",
         .todo = "Keep the name; a better one can stand in `about`.",
         .handler = serviceRenamed},
    Rule{.id = "service-reworded",
         .what = "what is said of a service has changed",
         .breaks = nothing,
         .step = Step::Patch,
         .why = "Only people read it.",
         .todo = "",
         .handler = serviceReworded},
};

constexpr std::array resourceRules{
    Rule{.id = "resource-added",
         .what = "a resource is new",
         .breaks = nothing,
         .step = Step::Minor,
         .why = "Nobody who was there before knows of it.",
         .todo = "",
         .handler = resourceAdded},
    Rule{.id = "resource-removed",
         .what = "a resource is gone",
         .breaks = everything,
         .why = "Its documents have no reader, its header and symbols are not there.",
         .todo = "Keep it until nobody uses it any more; say so in its `about`.",
         .handler = resourceRemoved},
    Rule{.id = "resource-moved",
         .what = "a resource is in another service",
         .breaks = everything,
         .why = "The service is the first part of its uris, the namespace of its classes and the "
                "folder of its header.",
         .todo = "Leave it where it is, or add it anew and keep the old one beside it.",
         .handler = resourceMoved},
    Rule{.id = "resource-renamed",
         .what = "a resource class has another name",
         .breaks = code,
         .why =
             "Header, classes and the presence accessors of polymorphic fields that hold it have "
             "its name. Uris have the resource key, which may stay.",
         .todo = "Edit clients and build them again; `resource_key` keeps the old key.",
         .handler = resourceRenamed},
    Rule{.id = "element-renamed",
         .what = "an element class has another name",
         .breaks = code,
         .why = "The class and the presence accessors of polymorphic fields that hold it have its "
                "name; nothing on the wire has.",
         .todo = "Edit clients and build them again.",
         .row = "element",
         .handler = elementRenamed},
    Rule{.id = "resource-key-changed",
         .what = "a resource key has changed",
         .breaks = wire,
         .why = "The key is the second part of every uri: documents are not found under the old "
                "one, and polymorphic fields take such references for something else.",
         .todo = "Keep the old key with `resource_key`.",
         .row = "resource_key",
         .handler = resourceKeyChanged},
    Rule{.id = "element-key-changed",
         .what = "an element key has changed",
         .breaks = nothing,
         .step = Step::Patch,
         .why = "Elements store it, and nobody reads it: it is in no document and no header.",
         .todo = "",
         .row = "element_key",
         .handler = elementKeyChanged},
    Rule{.id = "resource-reworded",
         .what = "what is said of a resource has changed",
         .breaks = nothing,
         .step = Step::Patch,
         .why = "Only people read it.",
         .todo = "",
         .row = "about",
         .handler = resourceReworded},
};

constexpr std::array fieldRules{
    Rule{.id = "field-added",
         .what = "a field is new",
         .breaks = binary,
         .why = elementGrows,
         .todo = buildAgain,
         .handler = fieldAdded},
    Rule{.id = "field-removed",
         .what = "a field is gone",
         .breaks = everything,
         .why = "Its key is passed over without a word, and its accessors are not there.",
         .todo = "Keep it until nobody uses it any more; say so in its note.",
         .handler = fieldRemoved},
    Rule{.id = "field-renamed",
         .what = "a field has another key",
         .breaks = everything,
         .why = "The old key is passed over without a word, and the accessors have other names.",
         .todo = "Keep the key; a better one can stand in its note. Or add a field, and keep the "
                 "old one beside it.",
         .handler = fieldRenamed},
    Rule{.id = "list-made-single",
         .what = "a list has become a single field",
         .breaks = everything,
         .why = "An array is not read as one of its entries, and setter and getter are of another "
                "type.",
         .todo = "Add a field of the new kind, and keep the old one beside it.",
         .handler = listMadeSingle},
    Rule{.id = "single-made-list",
         .what = "a single field has become a list",
         .breaks = everything,
         .why = "What is no array is passed over, and adder and getter are of another type.",
         .todo = "Add a field of the new kind, and keep the old one beside it.",
         .handler = singleMadeList},
    Rule{.id = "kind-changed",
         .what = "a field is of another kind",
         .breaks = everything,
         .why = "Old values are lost or bent, and the accessors are of another type.",
         .todo = "Add a field of the new kind, and keep the old one beside it.",
         .handler = kindChanged},
    Rule{.id = "kind-changed-alike",
         .what = "a field is of another kind that carries all that the old one did",
         .breaks = code,
         .why = "The accessors are of another type.",
         .todo = "Edit clients and build them again.",
         .handler = kindChangedAlike},
    Rule{.id = "target-changed",
         .what = "a field holds another element",
         .breaks = everything,
         .why = "The new element has not all fields of the old one, or has them of another kind: "
                "these are lost or bent. The accessors are of another type.",
         .todo = "Add a field with the new target, and keep the old one beside it.",
         .handler = targetChanged},
    Rule{.id = "target-changed-alike",
         .what = "a field holds another element that carries all that the old one did",
         .breaks = code,
         .why = "The accessors are of another type.",
         .todo = "Edit clients and build them again.",
         .handler = targetChangedAlike},
    Rule{
        .id = "choice-added",
        .what = "a polymorphic field has a target more",
        .breaks = binary,
        .why = "The element has a flag more. A client that makes one, or derives from it, keeps to "
               "the size that the old header gave. Uris of that target were dropped before.",
        .todo = "Clients are built again; code that takes the last target for granted asks for it.",
        .handler = choiceAdded},
    Rule{.id = "choice-added-to-last-resort",
         .what = "a polymorphic field has a target more, which its last resort took before",
         .breaks = code,
         .why = "Uris of that target came as external references and now come as the target: code "
                "that asks for the reference finds none. The element has a flag more.",
         .todo = "Edit clients that ask for the external reference; all are built again.",
         .handler = choiceAddedToLastResort},
    Rule{.id = "choice-removed",
         .what = "a polymorphic field has a target less",
         .breaks = everything,
         .why = "Elements of that target are dropped, or keep nothing but id, name and uri where "
                "there is a last resort. Its setter and presence accessor are not there.",
         .todo = "Keep the target.",
         .handler = choiceRemoved},
    Rule{.id = "choice-removed-alike",
         .what = "a polymorphic field has a target less, of which the last resort loses nothing",
         .breaks = code,
         .why = "The target's setter and presence accessor are not there.",
         .todo = "Edit clients and build them again.",
         .handler = choiceRemovedAlike},
    Rule{.id = "choices-reordered",
         .what = "the targets of a polymorphic field stand in another order",
         .breaks = nothing,
         .step = Step::Patch,
         .why =
             "No two targets answer to the same uri. The flags change places within the element, "
             "where the library alone reaches them, and its size stays.",
         .todo = "",
         .handler = choicesReordered},
    Rule{
        .id = "last-resort-added",
        .what = "a polymorphic field takes external references too",
        .breaks = binary,
        .why = "The element has a flag more. A client that makes one, or derives from it, keeps to "
               "the size that the old header gave. Other uris were dropped before.",
        .todo = "Clients are built again; code that takes the last target for granted asks for it.",
        .handler = lastResortAdded},
    Rule{.id = "last-resort-removed",
         .what = "a polymorphic field takes external references no longer",
         .breaks = everything,
         .why = "Uris that name none of the targets are dropped. Setter and presence accessor of "
                "the reference are not there.",
         .todo = "Keep `external` among the targets.",
         .handler = lastResortRemoved},
    Rule{.id = "field-reworded",
         .what = "what is said of a field has changed",
         .breaks = nothing,
         .step = Step::Patch,
         .why = "Only people read it.",
         .todo = "",
         .handler = fieldReworded},
};

constexpr auto allRules = [] {
    std::array<Rule, serviceRules.size() + resourceRules.size() + fieldRules.size()> all{};
    auto* next = std::ranges::copy(serviceRules, all.begin()).out;
    next = std::ranges::copy(resourceRules, next).out;
    std::ranges::copy(fieldRules, next);
    return all;
}();

} // namespace

std::span<Rule const> rules()
{
    return allRules;
}

} // namespace compat
