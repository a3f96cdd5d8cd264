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

    /// Whether the elements are written as a list, and how deep the lists in them lie.
    [[nodiscard]] bool isList() const { return !lines && !element; }
    [[nodiscard]] std::size_t listDepth() const { return isList() ? 3 : 2; }
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
    std::unique_ptr<data::Value>* owner; ///< of its value, or null while others need that, too

    /// Frees what was read as soon as nobody needs it any more, if that can be.
    void forget() const
    {
        if (owner != nullptr) {
            owner->reset();
            places.clear();
        }
    }
};

/// The next entries of a list of an element that has not come yet.
struct DocumentPart {
    std::string const& file;
    catalogue::Resource const& resource;
    std::size_t index; ///< of the element
    json::Part& part;
};

/// What is done with a document. All but the first may be left out.
struct DocumentHandlers {
    std::function<void(DocumentEntry const& entry)> onEntry;
    /// Takes a part of a long list; without it lists come whole.
    std::function<void(DocumentPart const& part)> onPart;
    /// Without it a wrong form is a `Failure`.
    std::function<void(WrongForm const& form)> onWrongForm;
    /// A line that cannot be read; the next ones are read all the same. Without it the fault is
    /// thrown.
    std::function<void(Failure const& fault)> onBadLine;
    json::MisfitHandler onMisfit;
    json::RepeatedKeyHandler onRepeatedKey;
    /// Without places none is told but of what the library must not be given.
    bool wantsPlaces = true;
};

/// Reads a file as the options say: one array of elements, one element, or a value on each line,
/// which is an array, an element, or a record with one of them, as the library that tells writes
/// them. Only one element, or one line, is in memory at any time; of an element whose resource is
/// known, no more than a part of its lists.
///
/// Throws `Failure` on a file that cannot be read, `Interrupted`, and what the handlers throw.
void readDocuments(std::string const& path, DocumentOptions const& options,
                   DocumentHandlers const& handlers);

} // namespace kiv
