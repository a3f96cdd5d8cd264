#pragma once

#include "frame/SerializationType.h"
#include "json/JsonWriter.h"
#include "tools/kiv/check/Checker.h"

#include <map>
#include <string>
#include <vector>

namespace kiv {

/// The lists of an element that are read and written in parts before the element itself has come,
/// so that neither they nor what the library makes of them is ever in memory as a whole. Their text
/// is.
class LongLists {
public:
    /// How the element will be written: in which form and layout, and how deep its lists lie.
    LongLists(common::SerializationType form, json::Layout layout, std::size_t depth)
        : m_form(form), m_layout(layout), m_depth(depth)
    {
    }

    /// Reads a part and keeps the text of what the library made of it. What it must not be given is
    /// told when the element is read.
    void read(DocumentPart const& given);

    /// What the library makes of the rest of the element, with an entry for each list that counts;
    /// and their text, which is forgotten here. Throws `Forbidden` at the first thing in the
    /// element, in the order in which the library reads it, that the library must not be given.
    struct Element {
        std::unique_ptr<data::Value> value;
        json::WrittenLists lists;
    };
    Element finish(DocumentEntry const& given);

private:
    struct List {
        std::vector<std::string> text;
        std::optional<Forbidden> fault;
    };

    std::unique_ptr<common::IObjectBase> readRest(DocumentEntry const& given) const;

    common::SerializationType m_form;
    json::Layout m_layout;
    std::size_t m_depth;
    std::map<std::string, List> m_lists; ///< in the order in which the library reads them
};

} // namespace kiv
