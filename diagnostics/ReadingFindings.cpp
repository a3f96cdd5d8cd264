// What is found on the way of reading, in words.

#include "diagnostics/KeyHomes.h"
#include "diagnostics/ReadingTrail.h"
#include "diagnostics/Words.h"
#include "json/TypeNames.h"

#include <array>
#include <utility>

namespace kiv::diagnostics {

namespace {

using common::internal::Plain;

/// By kind, in the order of the enumeration.
constexpr std::array<std::string_view, 4> wantedByKind{"text", "an integer", "a number",
                                                       "true or false"};

/// What arrives of a value of another type is for the platform to say.
std::string readAs(Plain kind, data::Value const& value)
{
    data::Ref const ref(&value);
    switch (kind) {
    case Plain::String:
        return quoted(ref.asString());
    case Plain::Bool:
        return ref.asBoolean() ? "true" : "false";
    case Plain::Double:
        return textOf(ref.asFloat());
    case Plain::Int:
        return std::to_string(ref.asInteger());
    }
    return {};
}

/// Whether the platform reads the same number from it either way, 5 from 5.0 and the reverse.
bool isSameNumber(data::Value const& value)
{
    data::Ref const ref(&value);
    try {
        return static_cast<double>(ref.asInteger()) == ref.asFloat();
    } catch (...) {
        return false;
    }
}

bool fits(Plain kind, Type type, data::Value const& value)
{
    switch (kind) {
    case Plain::String:
        return type == Type::Text;
    case Plain::Bool:
        return type == Type::Boolean;
    case Plain::Double:
        return type == Type::Float || (type == Type::Integer && isSameNumber(value));
    case Plain::Int:
        return type == Type::Integer;
    }
    return false;
}

} // namespace

/// An element was given no object, or a resource no array.
void ReadingTrail::tellForm(Level const& level)
{
    if (level.resource != nullptr) {
        tell(here(Fate::Lost, Id::WrongForm), wanted(level.value, "an array"),
             "the resource stays as it is", "put the elements in brackets");
        return;
    }
    bool const isOutermost = m_depth == 1;
    std::string const meant =
        !isOutermost && typeOf(level.value) == Type::Text
            ? "a uri can stand for a nested element, not for an entry of the resource"
            : "";
    std::string const stands = wanted(level.value, "an object");
    if (isOutermost) {
        tell(here(Fate::Lost, Id::WrongForm), stands, "the element stays as it is", meant);
        return;
    }
    --m_depth; // the entry's place is one level up
    Finding const finding = here(Fate::Invented, Id::InventedElement);
    ++m_depth;
    tell(finding, stands, "an empty element stands in its place", meant);
}

void ReadingTrail::tellUnknownKeys(Level const& level)
{
    auto known = level.asked.begin();
    eachOf(*level.map, [&](std::string_view key, data::Value const* value) {
        // Both come in ascending order.
        while (known != level.asked.end() && *known < key) {
            ++known;
        }
        if (known == level.asked.end() || *known != key) {
            tellUnknown(level, key, value == nullptr);
        }
    });
}

void ReadingTrail::tellUnknown(Level const& level, std::string_view key, bool isNull)
{
    top().key = key;
    Row const* const row = rowOf(level);
    std::string const home = row == nullptr ? "" : homeOf(*row, key);
    tell(here(isNull ? Fate::Suspect : Fate::Lost, Id::UnknownKey), "no key of " + nameOf(row),
         isNull ? "it is passed over, like every null" : "it is passed over",
         home.empty() ? guess(key, level.asked) : home);
    top().key = {};
}

void ReadingTrail::readPlain(Plain kind, data::Value const& value)
{
    Type const type = typeOf(&value);
    if (fits(kind, type, value)) {
        return;
    }
    std::string const stands = kind == Plain::Double && type == Type::Integer
                                   ? "an integer where a floating-point number is wanted"
                                   : wanted(&value, wantedByKind[static_cast<std::size_t>(kind)]);
    bool const isSame = kind == Plain::Int && type == Type::Float && isSameNumber(value);
    Finding finding = here(isSame ? Fate::Suspect : Fate::Changed, Id::OtherType);
    std::string becomes;
    try {
        becomes = "it reads as " + readAs(kind, value);
    } catch (...) { // the library asks again, and its caller gets to know
        finding.fate = Fate::Lost;
        becomes = "the value library refuses it";
    }
    tell(std::move(finding), stands, becomes);
}

void ReadingTrail::passNoList(data::Value const& value)
{
    tell(here(Fate::Lost, Id::NotAList), wanted(&value, "an array"), "the field is left as it was",
         "put it in brackets: the field is a list");
}

} // namespace kiv::diagnostics
