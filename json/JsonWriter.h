#pragma once

#include "json/ValueNames.h"
#include "text/Output.h"

#include <memory>

namespace kiv::json {

enum class Layout { Indented, Compact };

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

    /// A document that is an array, written entry by entry.
    virtual void startArray() = 0;
    virtual void entry(data::Value const* value) = 0;
    virtual void endArray() = 0;
};

/// A writer to `output`, which must outlive it.
std::unique_ptr<Writer> makeWriter(Output& output, Layout layout);

} // namespace kiv::json
