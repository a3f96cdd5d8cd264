#pragma once

#include "commandline/CommandLine.h"
#include "json/JsonReader.h"
#include "text/Failure.h"
#include "tools/lookup/Names.h"

#include <functional>
#include <string>

namespace kiv {

/// What the command line says of the documents that it names.
struct DocumentOptions {
    std::string resource;
    bool lines = false;
    bool element = false;

    /// Declares all three.
    void declare(commandline::Arguments& arguments);
};

/// A value that stands where the library wants another, so that nothing of it is read.
struct WrongForm {
    std::string file;
    json::Position position;
    std::string path;
    std::string stands; ///< `an object where an array is wanted`
    std::string meant;  ///< what to do
};

/// An element of a document.
struct DocumentEntry {
    std::string const& file; ///< as messages show it
    catalogue::Resource const& resource;
    json::Entry& entry;
    json::Places& places;
    bool isAlone; ///< nothing else holds its value

    /// Frees what was read as soon as nobody needs it any more, if that can be.
    void forget() const
    {
        if (isAlone) {
            entry.value.reset();
            places.clear();
        }
    }
};

/// What is done with a document. All but the first may be left out.
struct DocumentHandlers {
    std::function<void(DocumentEntry const& entry)> onEntry;
    /// Without it a wrong form is a `Failure`.
    std::function<void(WrongForm const& form)> onWrongForm;
    /// A line that cannot be read; the next ones are read all the same. Without it the fault is
    /// thrown.
    std::function<void(Failure const& fault)> onBadLine;
    json::MisfitHandler onMisfit;
    json::RepeatedKeyHandler onRepeatedKey;
};

/// Reads a file as the options say: one array of elements, one element, or a value on each line,
/// which is an array, an element, or a record with one of them, as the library that tells writes
/// them. Only one element, or one line, is in memory at any time.
///
/// Throws `Failure` on a file that cannot be read, `Interrupted`, and what the handlers throw.
void readDocuments(std::string const& path, DocumentOptions const& options,
                   DocumentHandlers const& handlers);

} // namespace kiv
