#pragma once

#include "generator/Printer.h"
#include "generator/model/Model.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kivgen {

using zel::kiv::catalogue::Purpose;

/// One operation of an element class that belongs to a field. Without a parameter it is const.
struct Accessor {
    Purpose purpose;
    std::string result;
    std::string name;
    std::string parameter;        ///< its type; it is always called `value`
    std::string body;             ///< one or more statements
    std::optional<Target> target; ///< the one of several targets that it is for
};

/// All that one field contributes to the code of its element. A part that a kind does not need
/// stays empty.
struct FieldCode {
    std::vector<std::string> includes; ///< headers of what the field holds
    std::string warning;               ///< what bites whoever uses the accessors, if anything does
    std::vector<Accessor> accessors;
    std::vector<std::string> members; ///< the stored value and its flags, in layout order
    std::vector<std::string> flags; ///< the names of the flags: the field is set if one of them is
    Block write;                    ///< puts a set field into `object`, in `serialize`
    Block targets;                  ///< the rows that `read` chooses from
    Block read;                     ///< reads the field from `fields`, in the visitor
    Block release;                  ///< frees what the field holds, in the destructor
};

/// What the kind of the field makes of it.
FieldCode codeOf(Field const& field, Interface const& interface);

/// The member that stores a field, and the flag beside it. A key holds no underscore, so these
/// names collide neither with each other nor with a word of the language.
std::string memberOf(Field const& field);
std::string flagOf(Field const& field);

/// The member as it is declared, `type` being its type.
std::string declared(Field const& field, std::string_view type);

/// A C++ type of the table of kinds, `T` being the class `held`.
std::string typeFor(std::string_view type, std::string_view held);

/// For a single element: nothing frees what a setter replaces.
inline constexpr std::string_view replacement = "An element that is replaced is not freed.";

/// The presence accessor of every kind but polymorphic.
Accessor presenceOf(Field const& field);

/// The step of `serialize`; `word` is the kind's in the name of the frame's operation.
Block writeStep(Field const& field, std::string const& word);

} // namespace kivgen
