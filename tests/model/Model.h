#pragma once

#include "catalogue/Catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace zel::dataformats::data {
class Value;
} // namespace zel::dataformats::data

/// What the library has to make of a value, worked out from the catalogue alone and without any of
/// the library's code: only the value classes and `getUriSplitted` are shared with it.
///
/// A value may be anything that a caller is allowed to give: what stands under `uri` in an object
/// under a polymorphic field is text, or there is no `uri`.
namespace model {

/// An element as it must be after the values that it has read.
class Element {
public:
    /// An element with no field set.
    explicit Element(zel::kiv::catalogue::Resource const* resource) : m_resource(resource) {}

    /// Reads a value, which may be null, on top of those read before.
    void read(zel::dataformats::data::Value const* value);

    /// The texts of the three value forms.
    [[nodiscard]] std::string full() const;
    [[nodiscard]] std::string shallow() const;
    [[nodiscard]] std::string reference() const;

private:
    /// A field that is set: the texts of a plain field, or the elements held.
    struct Held {
        std::string_view key;
        zel::kiv::catalogue::Kind kind;
        std::vector<std::string> plain;
        std::vector<Element> elements;
    };

    using NestedForm = std::string (Element::*)() const;

    void readField(zel::kiv::catalogue::Field const& field,
                   zel::dataformats::data::Value const& value);
    void readEntry(zel::kiv::catalogue::Field const& field,
                   zel::dataformats::data::Value const& value);
    void readNested(zel::dataformats::data::Value const& value);
    void setText(std::string_view key, std::string const& text);
    Held& hold(zel::kiv::catalogue::Field const& field);
    [[nodiscard]] std::string form(NestedForm nested) const;

    zel::kiv::catalogue::Resource const* m_resource;
    std::vector<Held> m_held; ///< in ascending order of keys
};

/// A resource as it must be after the values that it has read.
class Collection {
public:
    explicit Collection(zel::kiv::catalogue::Resource const& resource) : m_resource(&resource) {}

    /// Reads a value, which may be null, on top of those read before.
    void read(zel::dataformats::data::Value const* value);

    [[nodiscard]] std::vector<Element> const& elements() const { return m_elements; }

    /// The text of the value form.
    [[nodiscard]] std::string full() const;

private:
    zel::kiv::catalogue::Resource const* m_resource;
    std::vector<Element> m_elements;
};

/// What the resource must be after it has read that value, which may be null.
Collection modelOf(zel::kiv::catalogue::Resource const& resource,
                   zel::dataformats::data::Value const* value);

/// Whether an element is made for a polymorphic field, and of what resource.
struct Choice {
    bool made = false;
    zel::kiv::catalogue::Resource const* resource = nullptr;
};

/// What that uri selects for the field.
Choice choose(zel::kiv::catalogue::Field const& field, std::string_view uri);

} // namespace model
