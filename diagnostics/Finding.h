#pragma once

#include "catalogue/Catalogue.h"
#include "values/values.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kiv::diagnostics {

/// What becomes of a value that does not fit.
enum class Fate {
    Lost,      ///< nothing of it arrives
    Changed,   ///< another value arrives
    Invented,  ///< something arrives that was not given
    Mistaken,  ///< it arrives as it stands, and was meant otherwise
    Suspect,   ///< it arrives as it stands, but was hardly meant so
    Forbidden, ///< the library must never be given it
};

/// The word of a fate, as it stands in front of a finding.
std::string_view wordOf(Fate fate);

/// What happened. docs/diagnostics.md has a paragraph on each, by the name below.
enum class Id {
    UnknownKey,
    NullValue,
    OtherType,
    NotAList,
    EmptyList,
    NullEntry,
    InventedElement,
    NoUri,
    NoTarget,
    OtherResource,
    OddUri,
    WrongForm,
    EmptyReference,
    UriNoText,
    NullElement,
    NullSlot,
    RepeatedKey,
    WideNumber,
    TinyNumber,
};

struct IdRow {
    Id id;
    std::string_view name;
    bool isQuiet = false; ///< told only to who asks for everything
};

/// In the order of the enumeration.
inline constexpr std::array ids{
    IdRow{Id::UnknownKey, "unknown-key"},
    IdRow{Id::NullValue, "null-value", true},
    IdRow{Id::OtherType, "other-type"},
    IdRow{Id::NotAList, "not-a-list"},
    IdRow{Id::EmptyList, "empty-list"},
    IdRow{Id::NullEntry, "null-entry"},
    IdRow{Id::InventedElement, "invented-element"},
    IdRow{Id::NoUri, "no-uri"},
    IdRow{Id::NoTarget, "no-target"},
    IdRow{Id::OtherResource, "other-resource"},
    IdRow{Id::OddUri, "odd-uri"},
    IdRow{Id::WrongForm, "wrong-form"},
    IdRow{Id::EmptyReference, "empty-reference"},
    IdRow{Id::UriNoText, "uri-no-text"},
    IdRow{Id::NullElement, "null-element"},
    IdRow{Id::NullSlot, "null-slot"},
    IdRow{Id::RepeatedKey, "repeated-key"},
    IdRow{Id::WideNumber, "wide-number"},
    IdRow{Id::TinyNumber, "tiny-number", true},
};

constexpr IdRow const& rowOf(Id id)
{
    return ids[static_cast<std::size_t>(id)];
}

/// Where in a value something stands: under a key of an object, or at an index of an array. Without
/// a holder it is the value that was given.
struct Place {
    zel::dataformats::data::Value const* holder = nullptr;
    std::string_view key;
    std::size_t index = 0;
};

/// One place where the library does something else than its caller thinks.
struct Finding {
    Fate fate = Fate::Suspect;
    Id id = Id::UnknownKey;
    /// The class that the whole value was given to or asked of, and the one that has the key. Null
    /// stands for `ExternalResourceObject`.
    zel::kiv::catalogue::Resource const* top = nullptr;
    zel::kiv::catalogue::Resource const* holder = nullptr;
    std::string_view firstKey; ///< of the path, or empty
    std::string_view key;      ///< the last key of the path, or empty
    std::string path;          ///< `[3].station.uri`
    std::string pattern;       ///< the path with every index as 0
    std::string stands;        ///< what stands there: `text where a number is wanted`
    std::string becomes;       ///< what the library makes of it: `it reads as 0`
    std::string meant;         ///< what was probably meant, or empty: `did you mean 'position'?`
    Place place;
};

/// `radio/presets`, or `external` for null.
std::string nameOf(zel::kiv::catalogue::Resource const* resource);

} // namespace kiv::diagnostics
