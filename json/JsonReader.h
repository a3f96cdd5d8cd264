#pragma once

#include "json/Places.h"
#include "json/Position.h"
#include "json/PositionedStream.h"
#include "json/ValueNames.h"
#include "testing/detail/maxDepth.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

/// JSON texts as values: null becomes a null entry, an integer an `Integer`, any other number a
/// `Float`, and of a repeated key the last value stays.
///
/// A text that is no JSON in UTF-8, an integer outside 32 bits, a number too large for a double, a
/// key with a zero byte, a text of more than 2 GiB, and nesting deeper than `maxDepth` are refused:
/// the reading operations throw `Failure` with file, line and column. What the source throws passes
/// through.
namespace kiv::json {

/// How deep arrays and objects may be nested.
inline constexpr std::size_t maxDepth = zel::kiv::testing::detail::maxDepth;

/// How many entries of long arrays were given away as parts before the rest came, by their keys.
using GivenParts = std::map<std::string, std::size_t>;

/// An entry of the array at the top of a document.
struct Entry {
    std::unique_ptr<data::Value> value; ///< null for null
    Position position;
    std::size_t index = 0;
    GivenParts given;
};

/// Takes one entry after the other. The places are those of the values below the entry; they are
/// forgotten after the call, or before if the handler has no more use for them.
using EntryHandler = std::function<void(Entry entry, Places& places)>;

/// A whole document and where its values stand.
struct Document {
    std::unique_ptr<data::Value> value; ///< null for null
    Position position;
    Places places;
    GivenParts given;
};

/// Why no value holds a number as it stands.
enum class Misfit {
    WideInteger, ///< outside 32 bits; the nearest one takes its place
    WideNumber,  ///< too large for a double; the largest takes its place
    TinyNumber,  ///< a double has only zero for it
};

/// Is told of a number that no value holds: its place, its path and how it is written.
using MisfitHandler = std::function<void(Misfit misfit, Position position, std::string const& path,
                                         std::string const& number)>;

/// Is told of a key that stands in an object again: where it stood before, its path, and where it
/// stands now. Only the last value stays.
using RepeatedKeyHandler =
    std::function<void(Position before, std::string const& path, Position again)>;

/// The next entries of an array under a key of an entry, or of a whole document, that has not ended
/// yet. Of a key that is repeated each array comes; only those parts count that the entry tells of.
struct Part {
    std::string const& key;
    std::size_t index; ///< of the entry, 0 for a whole document
    std::size_t first; ///< the index of the first of these entries in the array
    std::unique_ptr<data::Value> array;
    Places const& places; ///< of these entries and what is below them
};

/// Takes a part of a long array; what is left of it when it ends is part of its entry. Or leaves
/// the part where it is: then the array is not asked for again.
using PartHandler = std::function<bool(Part& part)>;

/// Whether the place of a value is wanted, in so many arrays and objects, under a key if it has
/// one.
using PlaceFilter =
    std::function<bool(std::size_t depth, std::string_view key, data::Value const* value)>;

/// Who is told of what while a document is read.
struct Listeners {
    MisfitHandler onMisfit;           ///< without it a number that is too wide is refused
    RepeatedKeyHandler onRepeatedKey; ///< needs all places
    PartHandler onPart;               ///< without it arrays come whole
    PlaceFilter wantsPlace;           ///< without it all are
};

/// How much text of an array makes a part, and how much is too much for one: an entry so long is
/// worth more than the array around it, which comes whole from there on.
inline constexpr std::size_t partSize = 64UL * 1024;
inline constexpr std::size_t longestPart = 128 * partSize;

/// Reads a document and hands over the entries of the array at its top, each as soon as it has
/// ended; so no more than one is in memory at any time. What it returns is what is left then: the
/// array without its entries, or the whole of a document that is no array. `file` is the name that
/// messages use.
Document readEntries(std::string const& file, ByteSource source, EntryHandler const& handler,
                     Listeners const& listeners = {});

/// Reads all of a document. `start` is the place of its first byte in the file.
Document readDocument(std::string const& file, ByteSource source, Position start = {},
                      Listeners const& listeners = {});

} // namespace kiv::json
