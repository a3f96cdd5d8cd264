#pragma once

#include "diagnostics/Finding.h"
#include "frame/SerializationType.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace kiv::diagnostics {

/// One call of `deserialize` or `serialize` that does not come from the library itself.
struct Call {
    bool isIn;                                  ///< into the library: `deserialize`
    bool isResource;                            ///< of a resource, and not of an element
    zel::kiv::catalogue::Resource const* what;  ///< null: `ExternalResourceObject`
    zel::kiv::common::SerializationType form;   ///< of an element that comes out
    zel::dataformats::data::Value const* value; ///< what goes in or came out; may be null
    std::size_t elements;                       ///< how many were made or written
};

/// Takes what is found, in the order in which the library comes by. What an operation throws passes
/// through the library to its caller.
class Receiver {
public:
    Receiver() = default;
    Receiver(Receiver const&) = delete;
    Receiver(Receiver&&) = delete;
    Receiver& operator=(Receiver const&) = delete;
    Receiver& operator=(Receiver&&) = delete;
    virtual ~Receiver() = default;

    /// After one that is forbidden the library would run into what it must never do; if this
    /// returns, a uri that is no text is passed over, and a null is run into.
    virtual void onFinding(Finding const& finding) = 0;

    /// A value goes in, and has been read; it is not told if an exception ends the call.
    virtual void onStart(Call const& /*call*/) {}
    virtual void onEnd(Call const& /*call*/) {}
};

/// Who is told of what happens in any thread, or null. Set once, when the library is loaded.
void setReceiver(Receiver* receiver);

/// Tells another receiver of what happens in this thread, for as long as this lives.
class Listening {
public:
    explicit Listening(Receiver& receiver);
    Listening(Listening const&) = delete;
    Listening(Listening&&) = delete;
    Listening& operator=(Listening const&) = delete;
    Listening& operator=(Listening&&) = delete;
    ~Listening();

private:
    Receiver* m_before;
};

/// Whom this thread tells, or null.
Receiver* currentReceiver();

/// Of a list that is read in parts: which of its entries an element has that is read now.
struct ListPart {
    std::string key;
    std::size_t first;     ///< the index in the whole list of the first entry that is here
    bool hasTaken = false; ///< whether an entry of the parts before was not null
    bool isLast = true;
};

/// Reads one entry of an array as the resource would, with findings told to `receiver`, and hands
/// back the element. `index` is where the entry stands. May throw what the value library and the
/// receiver throw.
std::unique_ptr<zel::kiv::common::IObjectBase>
readEntry(zel::kiv::catalogue::Resource const& resource, std::size_t index,
          zel::dataformats::data::Value const* entry, Receiver& receiver,
          std::span<ListPart const> parts = {});

} // namespace kiv::diagnostics
