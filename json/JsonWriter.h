#pragma once

#include "json/ValueNames.h"
#include "text/Output.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kiv::json {

enum class Layout { Indented, Compact };

/// Lists of an object, by their keys, whose first entries are text already.
using WrittenLists = std::map<std::string, std::vector<std::string>>;

/// The entries of an array as a writer of that layout leaves them `depth` levels deep, to be put in
/// front of others by it. Throws as a writer does.
std::string entriesText(data::Array const& array, Layout layout, std::size_t depth);

/// Writes values as JSON in UTF-8, a line break after the document. Keys come in the order of the
/// object, numbers in the shortest form that reads back as the same number of the same type.
/// Characters that a terminal would act on are escaped.
///
/// Every operation throws `Failure` if the output cannot be written, or on what JSON cannot hold:
/// a number that is not finite, or a blob. The stack is used in proportion to the depth of the
/// values.
class Writer {
public:
    Writer() = default;
    Writer(Writer const&) = delete;
    Writer& operator=(Writer const&) = delete;
    virtual ~Writer() = default;

    /// Writes a whole document; null stands for JSON's null.
    virtual void document(data::Value const* value) = 0;
    /// Puts what is written of lists in front of their entries, which the object must have.
    virtual void document(data::Object const& object, WrittenLists const& lists) = 0;

    /// A document that is an array, written entry by entry.
    virtual void startArray() = 0;
    virtual void entry(data::Value const* value) = 0;
    virtual void entry(data::Object const& object, WrittenLists const& lists) = 0;
    virtual void endArray() = 0;
};

/// A writer to `output`, which must outlive it.
std::unique_ptr<Writer> makeWriter(Output& output, Layout layout);

} // namespace kiv::json
